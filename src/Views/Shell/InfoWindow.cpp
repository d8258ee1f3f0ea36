#include "Views/Shell/InfoWindow.h"

#include "Platform/Paths.h"
#include "Services/BuildConfig.h"
#include "Views/Shell/WindowCommand.h"
#include "Views/Widgets/Accessible.h"
#include "Views/Widgets/Layout.h"

#include <gtkmm/grid.h>
#include <gtkmm/image.h>
#include <gtkmm/shortcutlabel.h>

namespace tessaro {

InfoWindow::InfoWindow(const Glib::ustring& title) : Dialog(title) {
    set_modal(false);
    set_titlebar(header_);
    remove_css_class("sheet");
    add_css_class("info-window");
}

std::unique_ptr<InfoWindow> InfoWindow::about(EngineLoader& engine) {
    auto window = std::make_unique<InfoWindow>("Giới thiệu Tessaro");
    auto& lines = window->column();
    lines.set_spacing(6);
    auto& icon = *Gtk::make_managed<Gtk::Image>();
    icon.set_from_icon_name("com.vandel.Tessaro");
    icon.set_pixel_size(96);
    accessible::hide(icon);
    lines.append(icon);
    const auto addLine = [&lines](const Glib::ustring& text, const char* style) -> Gtk::Label& {
        auto& line = *Gtk::make_managed<Gtk::Label>(text);
        line.add_css_class(style);
        line.set_wrap();
        line.set_wrap_mode(Pango::WrapMode::WORD_CHAR);
        line.set_max_width_chars(48);
        line.set_justify(Gtk::Justification::CENTER);
        lines.append(line);
        return line;
    };
    addLine("Tessaro", "title-1");
    addLine(Glib::ustring("Phiên bản ") + build::version, "primary-text");
    addLine("Hộp thư của nhiều Trang Facebook trong một cửa sổ.", "secondary-text");
    auto& engineName = addLine("", "secondary-text");
    window->engineLoaded_ = engine.whenLoaded(
        [&engineName](Engine* loaded) { engineName.set_text(loaded ? loaded->name() : ""); });
    addLine("Giấy phép: GPL-3.0-or-later", "secondary-text");
    addLine("Dữ liệu: " + paths::dataFolder().string(), "secondary-text");
    return window;
}

std::unique_ptr<InfoWindow> InfoWindow::shortcuts() {
    auto window = std::make_unique<InfoWindow>("Phím tắt");
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
    for (const auto& command : windowCommands())
        addRow(command.title, command.accelerators.front());
    addRow("Chọn Page theo thứ tự trong danh sách", "<Control>1...9");
    addRow("Phím tắt", "<Control>question");
    window->column().append(list);
    return window;
}

} // namespace tessaro
