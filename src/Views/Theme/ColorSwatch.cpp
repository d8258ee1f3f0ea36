#include "Views/Theme/ColorSwatch.h"

#include "Views/Theme/ThemeManager.h"
#include "Views/Widgets/Accessible.h"

#include <gtkmm/snapshot.h>
#include <gtkmm/stylecontext.h>

#include <array>
#include <utility>

namespace tessaro {

namespace {

constexpr float diameter = 22;
constexpr float ringDiameter = 26;
constexpr float ringWidth = 1.5F;

GskRoundedRect circle(float centerX, float centerY, float across) {
    const graphene_rect_t bounds =
        GRAPHENE_RECT_INIT(centerX - across / 2, centerY - across / 2, across, across);
    GskRoundedRect result;
    gsk_rounded_rect_init_from_rect(&result, &bounds, across / 2);
    return result;
}

GdkRGBA toGdk(const Rgba& color) {
    return {
        static_cast<float>(color.red), static_cast<float>(color.green),
        static_cast<float>(color.blue), static_cast<float>(color.alpha)};
}

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
    set_tooltip_text(preset_.name);
    accessible::setName(*this, preset_.name);
    refresh();
}

void ColorSwatch::refresh() {
    const bool selected = theme_.activePresetId() == preset_.id;
    set_active(selected);
    check_.set_visible(selected);
    queue_draw();
}

void ColorSwatch::snapshot_vfunc(const Glib::RefPtr<Gtk::Snapshot>& snapshot) {
    const float centerX = static_cast<float>(get_width()) / 2;
    const float centerY = static_cast<float>(get_height()) / 2;

    const GskRoundedRect disc = circle(centerX, centerY, diameter);
    const GdkRGBA color = toGdk(dynamicPresetColor(preset_).resolve(theme_.isEffectivelyDark()));
    gtk_snapshot_push_rounded_clip(snapshot->gobj(), &disc);
    gtk_snapshot_append_color(snapshot->gobj(), &color, &disc.bounds);
    gtk_snapshot_pop(snapshot->gobj());

    if (get_active()) {
        // The stroke lies half inside and half outside of its circle.
        const GskRoundedRect ring = circle(centerX, centerY, ringDiameter + ringWidth);
        const std::array<float, 4> widths{ringWidth, ringWidth, ringWidth, ringWidth};
        const GdkRGBA text = *get_style_context()->get_color().gobj();
        const std::array<GdkRGBA, 4> colors{text, text, text, text};
        gtk_snapshot_append_border(snapshot->gobj(), &ring, widths.data(), colors.data());
    }
    Gtk::ToggleButton::snapshot_vfunc(snapshot);
}

} // namespace tessaro
