#include "Views/InfoWindow.h"

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
    set_hide_on_close(true);
    set_resizable(false);
    const auto escape = Gtk::ShortcutController::create();
    escape->add_shortcut(Gtk::Shortcut::create(
        Gtk::ShortcutTrigger::parse_string("Escape"),
        Gtk::ShortcutAction::parse_string("action(window.close)")));
    add_controller(escape);
}

} // namespace tessaro
