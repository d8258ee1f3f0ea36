#include "Platform/Gtk/PictureDecoder.h"

#include "support/Gtk/Pictures.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;

namespace {

constexpr std::uint32_t red = 0xFF0000FF;

std::pair<int, int> decodedSize(const std::string& bytes, int pixels) {
    const auto texture = decodePicture(bytes, pixels, Cancellation());
    if (!texture)
        return {0, 0};
    return {gdk_texture_get_width(texture.get()), gdk_texture_get_height(texture.get())};
}

} // namespace

TEST(PictureDecoder, KeepsNoMorePixelsThanAreDrawn) {
    EXPECT_EQ(decodedSize(test::pngPicture(400, 200, red), 40), std::pair(80, 40));
    EXPECT_EQ(decodedSize(test::pngPicture(20, 30, red), 40), std::pair(20, 30)) << "as it is";
}

TEST(PictureDecoder, RefusesWhatClaimsMoreThan4096PixelsBeforeDecodingIt) {
    EXPECT_NE(decodedSize(test::pngPicture(4096, 2, red), 2), std::pair(0, 0));
    EXPECT_EQ(decodedSize(test::pngPicture(4097, 2, red), 2), std::pair(0, 0));
    EXPECT_EQ(decodedSize(test::pngPicture(2, 4097, red), 2), std::pair(0, 0));

    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(decodedSize(test::pngHeader(30'000, 30'000), 40), std::pair(0, 0));
    EXPECT_EQ(
        decodedSize("<svg xmlns='http://www.w3.org/2000/svg' width='30000' height='30000'/>", 40),
        std::pair(0, 0));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST(PictureDecoder, RefusesWhatIsNoPicture) {
    EXPECT_EQ(decodedSize("", 40), std::pair(0, 0));
    EXPECT_EQ(decodedSize(test::pngPicture(100, 100, red).substr(0, 20), 40), std::pair(0, 0));
    EXPECT_EQ(decodedSize("<html>Not found</html>", 40), std::pair(0, 0));
}

TEST(PictureDecoder, StopsWhenItIsCancelled) {
    const Cancellation cancellation;
    cancellation.cancel();
    EXPECT_FALSE(decodePicture(test::pngPicture(100, 100, red), 40, cancellation));
}
