#pragma once

#include "Platform/ScopedConnection.h"
#include "Views/Sheets/Dialog.h"
#include "Views/Widgets/BusyButton.h"

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
    BusyButton& acceptButton() { return accept_; }

    /// Return was pressed while `focus` had the keyboard. True when that is all that it does; the
    /// toolkit lets it press a focused button, or go on from a field to the accept button.
    virtual bool onReturn(Gtk::Widget* focus);

    /// Scrolls the middle to where it begins.
    void showStart();
    /// Scrolls the middle to its end, and on while it grows.
    void showEnd();
    /// Leaves the middle where the person has scrolled it, whatever was shown last.
    void stopScrolling();

private:
    Gtk::WindowHandle handle_;
    Gtk::Box header_;
    Gtk::Label title_;
    Gtk::Button close_;
    Gtk::Separator above_;
    Gtk::ScrolledWindow scroller_;
    Gtk::Box content_;
    bool followsEnd_ = false;
    ScopedConnection scroll_;
    Gtk::Separator below_;
    Gtk::Box footer_;
    Gtk::Button cancel_;
    BusyButton accept_;
};

} // namespace tessaro
