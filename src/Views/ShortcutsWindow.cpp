#include "Views/ShortcutsWindow.h"

#include <gtkmm/label.h>
#include <gtkmm/shortcutlabel.h>

namespace tessaro {

ShortcutsWindow::ShortcutsWindow(Gtk::Window& parent) : InfoWindow(parent, "Phím tắt") {
    list_.add_css_class("info-window");
    list_.set_row_spacing(12);
    list_.set_column_spacing(48);
    for (const auto& command : conversationCommands())
        addCommand(command);
    for (const auto& command : browserCommands())
        addCommand(command);
    set_child(list_);
}

void ShortcutsWindow::addCommand(const WindowCommand& command) {
    auto* const title = Gtk::make_managed<Gtk::Label>(command.title);
    title->set_xalign(0);
    title->set_hexpand(true);
    auto* const keys = Gtk::make_managed<Gtk::ShortcutLabel>(command.accelerators.front());
    keys->set_halign(Gtk::Align::END);
    list_.attach(*title, 0, rows_);
    list_.attach(*keys, 1, rows_);
    ++rows_;
}

} // namespace tessaro
