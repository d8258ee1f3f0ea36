#include "Views/Shell/ShortcutsWindow.h"

#include "Views/Shell/WindowCommand.h"
#include "Views/Widgets/TextLine.h"

#include <gtkmm/grid.h>
#include <gtkmm/shortcutlabel.h>

namespace tessaro {

ShortcutsWindow::ShortcutsWindow() : InfoWindow("Phím tắt") {
    auto& list = *Gtk::make_managed<Gtk::Grid>();
    list.set_row_spacing(12);
    list.set_column_spacing(48);
    // The keys are in GTK's notation, in which "1...9" means the keys from 1 to 9.
    auto addRow = [&list, row = 0](const std::string& title, const std::string& keys) mutable {
        auto& label = textLine(title, {});
        label.set_hexpand();
        auto& caps = *Gtk::make_managed<Gtk::ShortcutLabel>(keys);
        caps.set_halign(Gtk::Align::END);
        list.attach(label, 0, row);
        list.attach(caps, 1, row++);
    };
    for (const auto& commands : {conversationCommands(), browserCommands()})
        for (const auto& command : commands)
            addRow(command.title, command.accelerators.front());
    addRow("Chọn Page theo thứ tự trong danh sách", "<Control>1...9");
    addRow("Phím tắt", "<Control>question");
    column().append(list);
}

} // namespace tessaro
