#include "Platform/Gtk/PictureDecoder.h"

#include "Platform/ScopedConnection.h"

#include <algorithm>
#include <cmath>

namespace tessaro {

namespace {

constexpr int largestSide = 4096;
constexpr std::size_t chunk = 16 * 1024;

int scaled(int side, double factor) {
    return std::max(1, static_cast<int>(std::lround(side * factor)));
}

/// Whether the bytes are a JPEG without its last marker or a PNG without its last chunk. The
/// platform's decoders would fill up the missing part in grey.
bool isCut(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xD8"))
        return bytes.rfind("\xFF\xD9") + 1 <= bytes.rfind("\xFF\xDA") + 1;
    return bytes.starts_with("\x89PNG") && bytes.rfind("IEND") == bytes.npos;
}

} // namespace

GObjectPtr<GdkTexture>
decodePicture(std::string_view bytes, int pixels, const Cancellation& cancellation) {
    if (isCut(bytes))
        return {};
    const auto loader = GObjectPtr<GdkPixbufLoader>::adopt(gdk_pixbuf_loader_new());
    bool accepted = true;
    // Emitted as soon as the header is read. A size of zero makes every decoder stop there.
    const auto sizePrepared = connectSignal<void(GdkPixbufLoader*, int, int)>(
        loader.get(), "size-prepared", [&](GdkPixbufLoader* self, int width, int height) {
            accepted = width > 0 && height > 0 && width <= largestSide && height <= largestSide;
            if (!accepted) {
                gdk_pixbuf_loader_set_size(self, 0, 0);
                return;
            }
            const double factor = static_cast<double>(pixels) / std::min(width, height);
            if (factor < 1)
                gdk_pixbuf_loader_set_size(self, scaled(width, factor), scaled(height, factor));
        });

    bool readable = true;
    while (readable && accepted && !bytes.empty() && !cancellation.isCancelled()) {
        const std::size_t length = std::min(chunk, bytes.size());
        readable = gdk_pixbuf_loader_write(
            loader.get(), reinterpret_cast<const guchar*>(bytes.data()), length, nullptr);
        bytes.remove_prefix(length);
    }
    // A loader must be closed in any case.
    const bool complete = gdk_pixbuf_loader_close(loader.get(), nullptr);
    if (!readable || !accepted || !complete || cancellation.isCancelled())
        return {};
    GdkPixbuf* decoded = gdk_pixbuf_loader_get_pixbuf(loader.get());
    if (!decoded)
        return {};
    const auto upright =
        GObjectPtr<GdkPixbuf>::adopt(gdk_pixbuf_apply_embedded_orientation(decoded));
    return GObjectPtr<GdkTexture>::adopt(gdk_texture_new_for_pixbuf(upright.get()));
}

bool isWholePicture(std::string_view bytes) {
    constexpr int pixels = 64;
    return static_cast<bool>(decodePicture(bytes, pixels, Cancellation()));
}

} // namespace tessaro
