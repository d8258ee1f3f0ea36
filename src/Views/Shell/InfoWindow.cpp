#include "Views/Shell/InfoWindow.h"

#include <glibmm/main.h>
#include <gtkmm/shortcut.h>
#include <gtkmm/shortcutaction.h>
#include <gtkmm/shortcutcontroller.h>
#include <gtkmm/shortcuttrigger.h>

namespace tessaro {

InfoWindow::InfoWindow(Gtk::Window& parent, const Glib::ustring& title) {
    set_title(title);
    set_titlebar(header_);
    set_transient_for(parent);
    set_destroy_with_parent(true);
    signal_close_request().connect(
        [this] {
            closing_ = ScopedConnection(Glib::signal_idle().connect(
                [this] {
                    closed.emit(); // Drops this window.
                    return false;
                },
                Glib::PRIORITY_HIGH));
            return true;
        },
        false);
    set_resizable(false);
    const auto escape = Gtk::ShortcutController::create();
    escape->add_shortcut(Gtk::Shortcut::create(
        Gtk::ShortcutTrigger::parse_string("Escape"),
        Gtk::ShortcutAction::parse_string("action(window.close)")));
    add_controller(escape);
}

} // namespace tessaro
