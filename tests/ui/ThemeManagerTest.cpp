#include "Views/ThemeManager.h"

#include "Views/InboxCommands.h"
#include "support/Gtk/FakeAppearance.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

using namespace tessaro;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

class ThemeManagerTest : public testing::Test {
protected:
    ThemeManagerTest() {
        announced_ = notifications_.observe(
            webViewThemeChanged, [this](const Notification&) { ++announcements_; });
    }

    ThemeManager make() { return ThemeManager(settings_, appearance_, notifications_, clock_); }

    test::TempFolder folder_;
    SettingsStore settings_{folder_ / "settings.ini"};
    test::FakeAppearance appearance_;
    NotificationCenter notifications_;
    test::ManualClock clock_;
    int announcements_ = 0;
    ScopedConnection announced_;
};

} // namespace

TEST_F(ThemeManagerTest, StartsAutomaticInEmeraldAndWritesNothing) {
    const auto theme = make();
    EXPECT_EQ(theme.appearanceMode(), "system");
    EXPECT_EQ(theme.activePreset().id, "emerald");
    EXPECT_EQ(theme.colorScheme(), std::nullopt);
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::system);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "settings.ini"));
}

TEST_F(ThemeManagerTest, KeepsBothChoicesAcrossRuns) {
    {
        auto theme = make();
        theme.setAppearanceMode("dark");
        theme.setActivePresetId("gold");
    }
    SettingsStore reread(folder_ / "settings.ini");
    appearance_ = {};
    const ThemeManager next(reread, appearance_, notifications_, clock_);
    EXPECT_EQ(next.appearanceMode(), "dark");
    EXPECT_EQ(next.activePreset().id, "gold");
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::dark);
}

TEST_F(ThemeManagerTest, RunsEveryStepAlsoForTheModeItHas) {
    auto theme = make();
    appearance_.windowCount = 2;
    int heard = 0;
    const auto observing = theme.observe([&] { ++heard; });
    for (int time = 1; time <= 2; ++time) {
        const Uuid trigger = theme.themeUpdateTrigger();
        appearance_.windowSchemes.clear();
        theme.setAppearanceMode("dark");
        EXPECT_EQ(appearance_.applications, 1 + time);
        EXPECT_THAT(appearance_.windowSchemes, ElementsAre(ColorScheme::dark, ColorScheme::dark));
        EXPECT_NE(theme.themeUpdateTrigger(), trigger);
        EXPECT_EQ(heard, time);
    }
    appearance_.windowSchemes.clear();
    theme.setAppearanceMode("system");
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::system);
    EXPECT_THAT(appearance_.windowSchemes, ElementsAre(ColorScheme::system, ColorScheme::system));
}

TEST_F(ThemeManagerTest, LeavesUnknownTextsAloneAndActsByTheDefaults) {
    settings_.setText(ThemeManager::appearanceModeKey, "sepia");
    settings_.setText(ThemeManager::activePresetIdKey, "Gold");
    auto theme = make();
    EXPECT_EQ(theme.activePreset().id, "emerald");
    EXPECT_EQ(theme.themePrimary(), rgbaFromHex("#0F5132"));
    EXPECT_EQ(theme.colorScheme(), std::nullopt);
    appearance_.setDesktopDark(true);
    EXPECT_EQ(theme.themePrimary(), rgbaFromHex("#34D399"));
    EXPECT_EQ(theme.activePresetId(), "Gold");
    theme.toggleTheme();
    EXPECT_EQ(theme.appearanceMode(), "light");
}

TEST_F(ThemeManagerTest, TogglesToTheOppositeOfWhatIsOnScreen) {
    auto theme = make();
    appearance_.desktopIsDark = true;
    theme.toggleTheme();
    EXPECT_EQ(theme.appearanceMode(), "light");
    theme.toggleTheme();
    EXPECT_EQ(theme.appearanceMode(), "dark");
    theme.toggleTheme();
    EXPECT_EQ(theme.appearanceMode(), "light");
    theme.setAppearanceMode("system");
    appearance_.desktopIsDark = false;
    theme.toggleTheme();
    EXPECT_EQ(theme.appearanceMode(), "dark");
}

TEST_F(ThemeManagerTest, TellsTheInboxBrowsersOfATogglesOnlyATenthOfASecondLater) {
    auto theme = make();
    theme.setAppearanceMode("dark");
    theme.setActivePresetId("ruby");
    clock_.advance(1s);
    EXPECT_EQ(announcements_, 0);
    theme.toggleTheme();
    clock_.advance(99ms);
    EXPECT_EQ(announcements_, 0);
    clock_.advance(1ms);
    EXPECT_EQ(announcements_, 1);
    clock_.advance(1s);
    EXPECT_EQ(announcements_, 1);
}

TEST_F(ThemeManagerTest, ChoosesTheTextThatReadsOnTheAccent) {
    auto theme = make();
    theme.setActivePresetId("olive");
    EXPECT_EQ(theme.themePrimaryContrastText(), (Rgba{1, 1, 1, 1}));
    theme.setAppearanceMode("dark");
    EXPECT_TRUE(theme.isPrimaryLight());
    EXPECT_EQ(theme.themePrimaryContrastText(), rgbaFromHex("#1F2937"));
    theme.setActivePresetId("gold");
    EXPECT_EQ(theme.themePrimaryLight(), rgbaFromHex("#FBBF24").withAlpha(0.16));
}

TEST_F(ThemeManagerTest, WaitsForTheToolkitAndThenFollowsTheDesktop) {
    settings_.setText(ThemeManager::appearanceModeKey, "dark");
    appearance_.ready = false;
    auto theme = make();
    theme.updateSystemAppearance();
    EXPECT_EQ(appearance_.applications, 0);
    appearance_.becomeReady();
    EXPECT_EQ(appearance_.applicationScheme, ColorScheme::dark);

    theme.setAppearanceMode("system");
    int heard = 0;
    const auto observing = theme.observe([&] { ++heard; });
    appearance_.setDesktopDark(true);
    EXPECT_EQ(heard, 1);
    EXPECT_TRUE(theme.isDarkMode());
}

TEST_F(ThemeManagerTest, MayBeGoneWhenTheToolkitComes) {
    appearance_.ready = false;
    { const auto theme = make(); }
    appearance_.becomeReady();
    EXPECT_EQ(appearance_.applications, 0);
}
