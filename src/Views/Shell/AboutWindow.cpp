#include "Views/Shell/AboutWindow.h"

#include "Platform/Paths.h"
#include "Services/BuildConfig.h"
#include "Views/Widgets/Accessible.h"

#include <gtkmm/image.h>

namespace tessaro {

AboutWindow::AboutWindow(Gtk::Window& parent, EngineLoader& engine)
    : InfoWindow(parent, "Giới thiệu Tessaro"), lines_(Gtk::Orientation::VERTICAL, 6) {
    auto* const icon = Gtk::make_managed<Gtk::Image>();
    icon->set_from_icon_name("com.vandel.Tessaro");
    icon->set_pixel_size(96);
    accessible::hide(*icon);
    lines_.add_css_class("info-window");
    lines_.append(*icon);
    addLine("Tessaro", "title-1");
    addLine(Glib::ustring("Phiên bản ") + build::version, "primary-text");
    addLine("Hộp thư của nhiều Trang Facebook trong một cửa sổ.", "secondary-text");
    auto& engineName = addLine("", "secondary-text");
    engineLoaded_ = engine.whenLoaded(
        [&engineName](Engine* loaded) { engineName.set_text(loaded ? loaded->name() : ""); });
    addLine("Giấy phép: GPL-3.0-or-later", "secondary-text");
    addLine("Dữ liệu: " + paths::dataFolder().string(), "secondary-text");
    set_child(lines_);
}

Gtk::Label& AboutWindow::addLine(const Glib::ustring& text, const char* style) {
    auto* const line = Gtk::make_managed<Gtk::Label>(text);
    line->add_css_class(style);
    line->set_wrap(true);
    line->set_wrap_mode(Pango::WrapMode::WORD_CHAR);
    line->set_max_width_chars(48);
    line->set_justify(Gtk::Justification::CENTER);
    lines_.append(*line);
    return *line;
}

} // namespace tessaro
