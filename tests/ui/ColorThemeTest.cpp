#include "Views/ColorTheme.h"

#include <gtest/gtest.h>

using namespace tessaro;

namespace {

Rgba bytes(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0, 1.0};
}

} // namespace

TEST(ColorTheme, ReadsHexTextsAsAScannerDoes) {
    const std::pair<const char*, Rgba> texts[] = {
        {"#0F5132", bytes(15, 81, 50)},
        {"#0x34D399", bytes(52, 211, 153)},
        {"#12345G", bytes(1, 35, 69)}, // Stops at the first other character.
        {"xanh", bytes(0, 0, 0)},
    };
    for (const auto& [text, color] : texts)
        EXPECT_EQ(rgbaFromHex(text), color) << text;
}

TEST(ColorTheme, CallsAColourLightAboveALuminanceOf165) {
    for (const char* light : {"#A6A6A6", " #d9f99d "})
        EXPECT_TRUE(isLightHex(light)) << light;
    for (const char* dark : {"#A5A5A5", "#34D399", "#FFF", "#FFFFFFFF", ""})
        EXPECT_FALSE(isLightHex(dark)) << dark;
}
