#pragma once

#include "Platform/GHandle.h"

#include <gdkmm/rgba.h>
#include <gtkmm/widget.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

namespace tessaro::test {

/// What a widget in a shown window drew last.
class WidgetPicture {
public:
    explicit WidgetPicture(Gtk::Widget& widget)
        : width_(widget.get_width()),
          height_(widget.get_height()),
          pixels_(std::size_t(width_) * std::size_t(height_)) {
        const auto paintable =
            GObjectPtr<GdkPaintable>::adopt(gtk_widget_paintable_new(widget.gobj()));
        GtkSnapshot* snapshot = gtk_snapshot_new();
        gdk_paintable_snapshot(paintable.get(), snapshot, width_, height_);
        const std::unique_ptr<GskRenderNode, Releaser<gsk_render_node_unref>> node(
            gtk_snapshot_free_to_node(snapshot));
        if (!node)
            return; // Nothing was drawn yet.
        const graphene_rect_t bounds = GRAPHENE_RECT_INIT(0, 0, float(width_), float(height_));
        const auto texture = GObjectPtr<GdkTexture>::adopt(gsk_renderer_render_texture(
            gtk_native_get_renderer(gtk_widget_get_native(widget.gobj())), node.get(), &bounds));
        gdk_texture_download(
            texture.get(), reinterpret_cast<guchar*>(pixels_.data()), std::size_t(width_) * 4);
    }

    /// The pixel at that point of the widget; transparent outside of it.
    Gdk::RGBA at(double x, double y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_)
            return {0, 0, 0, 0};
        const auto pixel = pixels_[std::size_t(y) * std::size_t(width_) + std::size_t(x)];
        const float alpha = float(pixel >> 24) / 255;
        const auto component = [&](int shift) {
            return alpha > 0 ? float((pixel >> shift) & 0xFF) / 255 / alpha : 0;
        };
        return {component(16), component(8), component(0), alpha};
    }

private:
    const int width_, height_;
    std::vector<std::uint32_t> pixels_; ///< Alpha, red, green, blue, from the highest byte on.
};

/// Whether two colours are the same to the eye: no component, weighted by opacity,
/// differs by more than two steps of a byte.
inline bool nearlyEqual(const Gdk::RGBA& one, const Gdk::RGBA& other) {
    const auto near = [](double a, double b) { return std::abs(a - b) <= 2.5 / 255; };
    const float a = one.get_alpha(), b = other.get_alpha();
    return near(a, b) && near(one.get_red() * a, other.get_red() * b) &&
           near(one.get_green() * a, other.get_green() * b) &&
           near(one.get_blue() * a, other.get_blue() * b);
}

} // namespace tessaro::test
