#pragma once

#include "Platform/GHandle.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <string>

namespace tessaro::test {

/// The bytes of a PNG of one colour, 0xRRGGBBAA.
inline std::string pngPicture(int width, int height, guint32 color) {
    const auto picture =
        GObjectPtr<GdkPixbuf>::adopt(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, width, height));
    gdk_pixbuf_fill(picture.get(), color);
    char* bytes = nullptr;
    gsize length = 0;
    gdk_pixbuf_save_to_buffer(picture.get(), &bytes, &length, "png", nullptr, nullptr);
    const GCharPtr owner(bytes);
    return {bytes, length};
}

} // namespace tessaro::test
