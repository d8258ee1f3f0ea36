#pragma once

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/separator.h>
#include <gtkmm/window.h>
#include <gtkmm/windowhandle.h>

#include <functional>

namespace tessaro {

/// A dialog in front of the main window, of one fixed size: a header row with title and close
/// button, a scrolling middle, and a footer with "Hủy" and the button that Return presses. Escape,
/// "Hủy" and the close button dismiss it.
class Sheet : public Gtk::Window {
public:
    /// @param width, height  of the content, in points
    /// @param acceptLabel    on the button that Return presses
    Sheet(int width, int height, const Glib::ustring& title, const Glib::ustring& acceptLabel);

    /// What takes the sheet off the screen; may drop it on a later turn of the main loop.
    void onDismiss(std::function<void()> action) { dismissAction_ = std::move(action); }

protected:
    /// The column in the middle, 16 points between its parts and around them.
    Gtk::Box& content() { return content_; }
    Gtk::Button& acceptButton() { return accept_; }
    void dismiss();

private:
    bool onKeyPressed(guint key, Gdk::ModifierType modifiers);

    std::function<void()> dismissAction_;
    Gtk::Box noTitlebar_; ///< In place of a title bar: the sheet brings its own header row.
    Gtk::Box column_;
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
