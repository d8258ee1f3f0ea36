#include "Views/Shell/ShortcutsWindow.h"

#include <gtkmm/label.h>
#include <gtkmm/shortcutlabel.h>

namespace tessaro {

ShortcutsWindow::ShortcutsWindow(Gtk::Window& parent) : InfoWindow(parent, "Phím tắt") {
    list_.add_css_class("info-window");
    list_.set_row_spacing(12);
    list_.set_column_spacing(48);
    for (const auto& command : conversationCommands())
        addRow(command.title, command.accelerators.front());
    for (const auto& command : browserCommands())
        addRow(command.title, command.accelerators.front());
    addRow("Chọn Page theo thứ tự trong danh sách", "<Control>1...9");
    addRow("Phím tắt", "<Control>question");
    set_child(list_);
}

void ShortcutsWindow::addRow(const std::string& title, const std::string& keys) {
    auto* const label = Gtk::make_managed<Gtk::Label>(title);
    label->set_xalign(0);
    label->set_hexpand(true);
    auto* const caps = Gtk::make_managed<Gtk::ShortcutLabel>(keys);
    caps->set_halign(Gtk::Align::END);
    list_.attach(*label, 0, rows_);
    list_.attach(*caps, 1, rows_);
    ++rows_;
}

} // namespace tessaro
