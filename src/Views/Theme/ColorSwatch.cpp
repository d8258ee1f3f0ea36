#include "Views/Theme/ColorSwatch.h"

#include "Views/Theme/ThemeManager.h"
#include "Views/Widgets/Accessible.h"

#include <gdkmm/general.h>
#include <gtkmm/snapshot.h>
#include <gtkmm/stylecontext.h>

#include <numbers>
#include <utility>

namespace tessaro {

namespace {

constexpr double radius = 11;
constexpr double ringRadius = 13;
constexpr double ringWidth = 1.5;

} // namespace

ColorSwatch::ColorSwatch(ThemeManager& theme, int width)
    : Glib::ObjectBase("TessaroColorSwatch"), theme_(theme) {
    add_css_class("borderless");
    add_css_class("color-swatch");
    set_size_request(width, width);
    set_halign(Gtk::Align::CENTER);
    set_valign(Gtk::Align::CENTER);
    check_.set_halign(Gtk::Align::CENTER);
    set_child(check_);
    signal_clicked().connect([this] { theme_.setActivePresetId(preset_.id); });
    themeChanged_ = theme.observe([this] { refresh(); });
}

void ColorSwatch::setPreset(ColorPreset preset) {
    preset_ = std::move(preset);
    accessible::setTooltip(*this, preset_.name);
    refresh();
}

void ColorSwatch::refresh() {
    const bool selected = theme_.activePresetId() == preset_.id;
    set_active(selected);
    check_.set_visible(selected);
    queue_draw();
}

void ColorSwatch::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    const double x = get_width() / 2.0;
    const double y = get_height() / 2.0;
    // The stroke lies half inside and half outside of its circle.
    const auto cairo =
        snapshot->append_cairo(Gdk::Rectangle(-1, -1, get_width() + 2, get_height() + 2));
    cairo->arc(x, y, radius, 0, 2 * std::numbers::pi);
    Gdk::Cairo::set_source_rgba(cairo, dynamicPresetColor(preset_, theme_.isEffectivelyDark()));
    cairo->fill();
    if (get_active()) {
        cairo->arc(x, y, ringRadius, 0, 2 * std::numbers::pi);
        Gdk::Cairo::set_source_rgba(cairo, get_style_context()->get_color());
        cairo->set_line_width(ringWidth);
        cairo->stroke();
    }
    Gtk::ToggleButton::snapshot_vfunc(snapshot);
}

} // namespace tessaro
