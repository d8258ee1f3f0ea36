#include "Views/ColorTheme.h"

#include "Views/ColorPreset.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using namespace tessaro;

namespace {

Rgba bytes(int red, int green, int blue) {
    return {red / 255.0, green / 255.0, blue / 255.0, 1.0};
}

const ColorPreset& preset(const std::string& id) {
    return *std::ranges::find(colorPresets(), id, &ColorPreset::id);
}

} // namespace

TEST(ColorTheme, ReadsHexTextsAsAScannerDoes) {
    EXPECT_EQ(rgbaFromHex("#0F5132"), bytes(15, 81, 50));
    EXPECT_EQ(rgbaFromHex("0F5132"), bytes(15, 81, 50));
    EXPECT_EQ(rgbaFromHex("  #34d399\n"), bytes(52, 211, 153));
    EXPECT_EQ(rgbaFromHex("#0x34D399"), bytes(52, 211, 153));
    EXPECT_EQ(rgbaFromHex("#12345G"), bytes(1, 35, 69)) << "stops at the first other character";
    EXPECT_EQ(rgbaFromHex("#FFF"), bytes(0, 15, 255)) << "short forms are not expanded";
    EXPECT_EQ(rgbaFromHex("#80FF0000"), bytes(255, 0, 0)) << "only the low 24 bits count";
    EXPECT_EQ(rgbaFromHex("#FF000080"), bytes(0, 0, 128));
    EXPECT_EQ(rgbaFromHex("#1234567890123456789"), bytes(255, 255, 255)) << "saturates";
    for (const char* noDigits : {"", "#", "##0F5132", "xanh", "0x"})
        EXPECT_EQ(rgbaFromHex(noDigits), bytes(0, 0, 0)) << noDigits;
}

TEST(ColorTheme, CallsAColourLightAboveALuminanceOf165) {
    EXPECT_FALSE(isLightHex("#A5A5A5"));
    EXPECT_TRUE(isLightHex("#A6A6A6"));
    EXPECT_TRUE(isLightHex("#FFFFFF"));
    EXPECT_TRUE(isLightHex(" #d9f99d "));
    EXPECT_FALSE(isLightHex("#34D399"));
    for (const char* otherLength : {"#FFF", "#FFFFFFFF", "", "##FFFFF0"})
        EXPECT_FALSE(isLightHex(otherLength)) << otherLength;
}

TEST(ColorTheme, ResolvesAPresetForTheAppearanceThatIsDrawn) {
    const DynamicColor gold = dynamicPresetColor(preset("gold"), 0.08, 0.16);
    EXPECT_EQ(gold.resolve(false), bytes(0xB5, 0x7A, 0x00).withAlpha(0.08));
    EXPECT_EQ(gold.resolve(true), bytes(0xFB, 0xBF, 0x24).withAlpha(0.16));
    EXPECT_EQ(dynamicPresetColor(preset("gold")).resolve(true).alpha, 1.0);
}

TEST(ColorPresets, AreFiftyWithKeysAndNamesOfTheirOwn) {
    std::set<std::string> ids;
    std::set<std::string> names;
    for (const ColorPreset& each : colorPresets()) {
        ids.insert(each.id);
        names.insert(each.name);
        EXPECT_FALSE(isLightHex(each.lightHex)) << each.id << " needs white text in light";
    }
    EXPECT_EQ(ids.size(), 50U);
    EXPECT_EQ(names.size(), 50U);
    EXPECT_EQ(colorPresets().front().id, "emerald");
    EXPECT_EQ(colorPresets().back().id, "cocoa");
}

TEST(ColorPresets, NeedDarkTextInDarkOnlyWhereTheyAreBright) {
    for (const char* id : {"mint", "olive", "sands"})
        EXPECT_TRUE(isLightHex(preset(id).darkHex)) << id;
    for (const char* id : {"emerald", "charcoal", "rose"})
        EXPECT_FALSE(isLightHex(preset(id).darkHex)) << id;
}
