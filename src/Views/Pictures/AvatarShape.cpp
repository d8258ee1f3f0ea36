#include "Views/Pictures/AvatarShape.h"

#include "Platform/Gtk/SmoothRectangle.h"

#include <cairomm/context.h>
#include <cairomm/surface.h>

#include <algorithm>

namespace tessaro {

namespace {

Cairo::RefPtr<Cairo::ImageSurface> surfaceOf(GdkTexture& texture) {
    auto surface = Cairo::ImageSurface::create(
        Cairo::Surface::Format::ARGB32, gdk_texture_get_width(&texture),
        gdk_texture_get_height(&texture));
    gdk_texture_download(&texture, surface->get_data(), static_cast<gsize>(surface->get_stride()));
    surface->mark_dirty();
    return surface;
}

GObjectPtr<GdkTexture> textureOf(Cairo::ImageSurface& surface) {
    surface.flush();
    const auto stride = static_cast<gsize>(surface.get_stride());
    const auto height = static_cast<gsize>(surface.get_height());
    const GBytesPtr bytes(g_bytes_new(surface.get_data(), stride * height));
    // A Cairo surface has the memory layout that GDK uses by default.
    return GObjectPtr<GdkTexture>::adopt(gdk_memory_texture_new(
        surface.get_width(), surface.get_height(), GDK_MEMORY_DEFAULT, bytes.get(), stride));
}

} // namespace

GObjectPtr<GdkTexture> AvatarShape::cut(GdkTexture& picture, int side, double scale) const {
    const double width = gdk_texture_get_width(&picture);
    const double height = gdk_texture_get_height(&picture);
    const double fill = side / std::min(width, height);
    const auto surface = Cairo::ImageSurface::create(Cairo::Surface::Format::ARGB32, side, side);
    const auto context = Cairo::Context::create(surface);
    addSmoothRectangle(context, 0, 0, side, side, cornerRadius * scale);
    context->clip();
    context->translate((side - width * fill) / 2, (side - height * fill) / 2);
    context->scale(fill, fill);
    context->set_source(surfaceOf(picture), 0, 0);
    context->paint();
    return textureOf(*surface);
}

} // namespace tessaro
