#include "Platform/Gtk/PictureDecoder.h"

#include "support/Gtk/Pictures.h"

#include <gtest/gtest.h>

using namespace tessaro;

TEST(PictureDecoder, KeepsNoMorePixelsThanAreDrawnAndRefusesWhatClaimsMoreThan4096) {
    const auto picture = [](int width, int height) {
        return test::pngPicture(width, height, 0xFF0000FF);
    };
    using Size = std::pair<int, int>;
    const Size none{0, 0};
    const std::string svg = "<svg xmlns='http://www.w3.org/2000/svg' width='9999' height='9'/>";
    const std::pair<std::string, Size> pictures[] = {
        {picture(400, 200), {80, 40}},    {picture(20, 30), {20, 30}},
        {picture(4096, 40), {4096, 40}},  {picture(4097, 40), none},
        {picture(40, 4097), none},        {svg, none},
        {"<html>Not found</html>", none},
    };
    for (const auto& [bytes, size] : pictures) {
        const auto texture = decodePicture(bytes, 40, Cancellation());
        EXPECT_EQ(
            texture
                ? Size(gdk_texture_get_width(texture.get()), gdk_texture_get_height(texture.get()))
                : none,
            size);
    }
}

TEST(PictureDecoder, RefusesAPictureThatWasCut) {
    const auto noise =
        GObjectPtr<GdkPixbuf>::adopt(gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, 100, 100));
    for (gsize i = 0; i < gdk_pixbuf_get_byte_length(noise.get()); ++i)
        gdk_pixbuf_get_pixels(noise.get())[i] = static_cast<guchar>(i * i / 7);
    for (const char* type : {"jpeg", "png"}) {
        gchar* buffer = nullptr;
        gsize length = 0;
        ASSERT_TRUE(
            gdk_pixbuf_save_to_buffer(noise.get(), &buffer, &length, type, nullptr, nullptr));
        const GCharPtr owner(buffer);
        const std::string_view whole(buffer, length);
        EXPECT_TRUE(isWholePicture(whole)) << type;
        for (const std::size_t kept : {length - 9, length / 2, length / 10, 4ul})
            EXPECT_FALSE(isWholePicture(whole.substr(0, kept))) << type << kept;
    }
}
