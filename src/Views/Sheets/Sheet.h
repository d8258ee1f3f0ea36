#pragma once

#include "Views/Sheets/Dialog.h"

#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/separator.h>
#include <gtkmm/windowhandle.h>

namespace tessaro {

/// A dialog of one fixed size: a header row with title and close button, a scrolling middle, and a
/// footer with "Hủy" and the button that Return presses. "Hủy" and the close button dismiss it.
class Sheet : public Dialog {
public:
    /// @param width, height  of the content, in points
    /// @param acceptLabel    on the button that Return presses
    Sheet(int width, int height, const Glib::ustring& title, const Glib::ustring& acceptLabel);

protected:
    /// The column in the middle, 16 points between its parts and around them.
    Gtk::Box& content() { return content_; }
    Gtk::Button& acceptButton() { return accept_; }

private:
    Gtk::WindowHandle handle_;
    Gtk::Box header_;
    Gtk::Label title_;
    Gtk::Button close_;
    Gtk::Separator above_;
    Gtk::ScrolledWindow scroller_;
    Gtk::Box content_;
    Gtk::Separator below_;
    Gtk::Box footer_;
    Gtk::Button cancel_;
    Gtk::Button accept_;
};

} // namespace tessaro
