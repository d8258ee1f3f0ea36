#include "Views/Theme/ThemeManager.h"

#include "Views/Widgets/InboxCommands.h"
#include "support/Gtk/FakeAppearance.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;

namespace {

class ThemeManagerTest : public testing::Test {
protected:
    ThemeManager make() { return ThemeManager(settings_, appearance_, notifications_, clock_); }

    test::TempFolder folder_;
    SettingsStore settings_{folder_ / "settings.ini"};
    test::FakeAppearance appearance_;
    NotificationCenter notifications_;
    test::ManualClock clock_;
};

} // namespace

TEST_F(ThemeManagerTest, StartsAutomaticInEmeraldAndKeepsBothChoicesAcrossRuns) {
    {
        auto theme = make();
        EXPECT_EQ(theme.appearanceMode(), "system");
        EXPECT_EQ(theme.activePreset().id, "emerald");
        theme.setAppearanceMode("dark");
        theme.setActivePresetId("gold");
    }
    appearance_.applicationScheme = {};
    SettingsStore reread(folder_ / "settings.ini");
    const ThemeManager next(reread, appearance_, notifications_, clock_);
    EXPECT_EQ(next.appearanceMode(), "dark");
    EXPECT_EQ(next.activePreset().id, "gold");
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::dark);
}

TEST_F(ThemeManagerTest, TogglesToTheOppositeOfWhatIsOnScreenAndTellsTheInboxATenthLater) {
    auto theme = make();
    int announced = 0;
    const auto observing =
        notifications_.observe(webViewThemeChanged, [&](const Announcement&) { ++announced; });
    appearance_.desktopIsDark = true;
    for (const char* mode : {"light", "dark", "light"}) {
        theme.toggleTheme();
        EXPECT_EQ(theme.appearanceMode(), mode);
        clock_.advance(99ms);
        EXPECT_EQ(std::exchange(announced, 0), 0);
        clock_.advance(1ms);
        EXPECT_EQ(std::exchange(announced, 0), 1);
    }
    theme.setAppearanceMode("dark"); // This announces nothing to the inbox; only a toggle does.
    clock_.advance(1s);
    EXPECT_EQ(announced, 0);
}

TEST_F(ThemeManagerTest, GivesTheColoursOfAPresetInLightAndDarkAndEmeraldsForNone) {
    const Gdk::RGBA white{1, 1, 1, 1}, black = rgbaFromHex("#1F2937");
    const std::tuple<const char*, const char*, Gdk::RGBA, const char*, Gdk::RGBA> presets[] = {
        {"olive", "#4F5D2F", white, "#D9F99D", black},
        {"gold", "#B57A00", white, "#FBBF24", black},
        {"Gold", "#0F5132", white, "#34D399", white}};
    auto theme = make();
    for (const auto& [id, light, onLight, dark, onDark] : presets) {
        theme.setActivePresetId(id);
        EXPECT_EQ(theme.activePresetId(), id);
        theme.setAppearanceMode("sepia"); // An unknown mode follows the desktop.
        EXPECT_EQ(theme.themePrimary(), rgbaFromHex(light)) << id;
        EXPECT_EQ(theme.themePrimaryContrastText(), onLight) << id;
        theme.setAppearanceMode("dark");
        EXPECT_EQ(theme.themePrimary(), rgbaFromHex(dark)) << id;
        EXPECT_EQ(theme.themePrimaryContrastText(), onDark) << id;
        Gdk::RGBA tint = rgbaFromHex(dark);
        tint.set_alpha(0.16F);
        EXPECT_EQ(theme.themePrimaryLight(), tint) << id;
    }
    EXPECT_EQ(black, Gdk::RGBA(31 / 255.0F, 41 / 255.0F, 55 / 255.0F));
}

TEST(ColorPresets, LeaveTextAndFocusRingsReadableInLightAndDark) {
    const Gdk::RGBA grounds[] = {rgbaFromHex("#FAFAFA"), rgbaFromHex("#242424")}; // The windows'.
    for (const ColorPreset& preset : colorPresets()) {
        for (const bool isDark : {false, true}) {
            const Gdk::RGBA accent = dynamicPresetColor(preset, isDark);
            EXPECT_GE(contrastRatio(readableTextOn(accent), accent), 4.5) << preset.id << isDark;
            EXPECT_GE(contrastRatio(accent, grounds[isDark]), 3) << preset.id << isDark;
        }
    }
    EXPECT_NEAR(contrastRatio(rgbaFromHex("#34D399"), rgbaFromHex("#FFFFFF")), 1.92, 0.005);
}

TEST_F(ThemeManagerTest, WaitsForTheToolkitAndThenFollowsTheDesktop) {
    settings_.setText(ThemeManager::appearanceModeKey, "dark");
    appearance_.ready = false;
    auto theme = make();
    { const auto goneBefore = make(); }
    theme.updateSystemAppearance();
    EXPECT_EQ(appearance_.applicationScheme, std::nullopt);
    appearance_.becomeReady();
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::dark);

    theme.setAppearanceMode("system");
    int heard = 0;
    const auto observing = theme.observe([&] { ++heard; });
    appearance_.setDesktopDark(true);
    EXPECT_EQ(heard, 1);
    EXPECT_TRUE(theme.isDarkMode());
}
