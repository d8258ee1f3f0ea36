#pragma once

#include "Platform/GHandle.h"

#include <cairomm/surface.h>
#include <gdkmm/rgba.h>
#include <gtkmm/widget.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace tessaro::test {

/// What a widget in a shown window drew last.
class WidgetPicture {
public:
    explicit WidgetPicture(Gtk::Widget& widget)
        : surface_(Cairo::ImageSurface::create(
              Cairo::Surface::Format::ARGB32, std::max(1, widget.get_width()),
              std::max(1, widget.get_height()))) {
        const auto paintable =
            GObjectPtr<GdkPaintable>::adopt(gtk_widget_paintable_new(widget.gobj()));
        GtkSnapshot* snapshot = gtk_snapshot_new();
        gdk_paintable_snapshot(paintable.get(), snapshot, widget.get_width(), widget.get_height());
        const std::unique_ptr<GskRenderNode, Releaser<gsk_render_node_unref>> node(
            gtk_snapshot_free_to_node(snapshot));
        if (!node)
            return; // Nothing was drawn yet.
        const graphene_rect_t bounds = GRAPHENE_RECT_INIT(
            0, 0, static_cast<float>(surface_->get_width()),
            static_cast<float>(surface_->get_height()));
        const auto texture = GObjectPtr<GdkTexture>::adopt(gsk_renderer_render_texture(
            gtk_native_get_renderer(gtk_widget_get_native(widget.gobj())), node.get(), &bounds));
        gdk_texture_download(
            texture.get(), surface_->get_data(), static_cast<gsize>(surface_->get_stride()));
        surface_->mark_dirty();
    }

    /// The pixel at that point of the widget; transparent outside of it.
    Gdk::RGBA at(double x, double y) const {
        if (x < 0 || y < 0 || x >= surface_->get_width() || y >= surface_->get_height())
            return {0, 0, 0, 0};
        const auto* row = surface_->get_data() + static_cast<int>(y) * surface_->get_stride();
        const auto pixel = reinterpret_cast<const std::uint32_t*>(row)[static_cast<int>(x)];
        const float alpha = float(pixel >> 24) / 255;
        const auto component = [&](int shift) {
            return alpha > 0 ? float((pixel >> shift) & 0xFF) / 255 / alpha : 0;
        };
        return {component(16), component(8), component(0), alpha};
    }

private:
    Cairo::RefPtr<Cairo::ImageSurface> surface_;
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
