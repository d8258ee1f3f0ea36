#include "FuzzTarget.h"

#include "Platform/Gtk/PictureDecoder.h"

using namespace tessaro;

/// The shorter side of a picture that decodes is no longer than was asked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int pixels = 64;
    const auto picture = decodePicture(test::asText(data, size), pixels, Cancellation());
    test::require(
        !picture ||
        std::min(gdk_texture_get_width(picture.get()), gdk_texture_get_height(picture.get())) <=
            pixels);
    return 0;
}
