#pragma once

#include <gtkmm/box.h>
#include <gtkmm/window.h>

#include <functional>

namespace tessaro {

/// A window in front of another one, modal and without a title bar unless the class that derives
/// from it has it otherwise. Escape and closing dismiss it.
class Dialog : public Gtk::Window {
public:
    /// @param title  its name for assistive technology and the desktop
    explicit Dialog(const Glib::ustring& title);

    /// What takes the dialog off the screen; may drop it on a later turn of the main loop.
    void onDismiss(std::function<void()> action) { dismissAction_ = std::move(action); }

protected:
    /// What the dialog shows, from the top down.
    Gtk::Box& column() { return column_; }
    void dismiss();

private:
    std::function<void()> dismissAction_;
    Gtk::Box noTitlebar_;
    Gtk::Box column_;
};

} // namespace tessaro
