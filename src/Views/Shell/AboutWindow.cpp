#include "Views/Shell/AboutWindow.h"

#include "Platform/Paths.h"
#include "Services/BuildConfig.h"
#include "Views/Widgets/Accessible.h"

#include <gtkmm/image.h>
#include <gtkmm/label.h>

namespace tessaro {

AboutWindow::AboutWindow(EngineLoader& engine) : InfoWindow("Giới thiệu Tessaro") {
    auto& lines = column();
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
    engineLoaded_ = engine.whenLoaded(
        [&engineName](Engine* loaded) { engineName.set_text(loaded ? loaded->name() : ""); });
    addLine("Giấy phép: GPL-3.0-or-later", "secondary-text");
    addLine("Dữ liệu: " + paths::dataFolder().string(), "secondary-text");
}

} // namespace tessaro
