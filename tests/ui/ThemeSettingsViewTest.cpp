#include "Views/ThemeSettingsView.h"

#include "Platform/Gtk/AdwAppearance.h"
#include "Views/ColorSwatch.h"
#include "Views/ThemeManager.h"
#include "Views/ThemeStyle.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/WidgetTree.h"
#include "support/MainLoop.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/window.h>

#include <algorithm>

using namespace tessaro;

namespace {

/// The panel in a shown window, over the real style manager.
class ThemeSettingsViewTest : public testing::Test {
protected:
    ThemeSettingsViewTest() {
        window_.set_child(panel_);
        window_.present();
        EXPECT_TRUE(test::runUntil([&] { return swatches().size() == 50; }));
    }
    ~ThemeSettingsViewTest() override { theme_.setAppearanceMode("system"); }

    std::vector<ColorSwatch*> swatches() { return test::descendants<ColorSwatch>(panel_); }
    ColorSwatch& swatch(const std::string& id) {
        for (auto* each : swatches())
            if (each->preset().id == id)
                return *each;
        throw std::out_of_range(id);
    }
    std::vector<std::string> selectedSwatches() {
        std::vector<std::string> ids;
        for (auto* each : swatches())
            if (each->get_active())
                ids.push_back(each->preset().id);
        return ids;
    }
    Gtk::ToggleButton& modeButton(const Glib::ustring& title) {
        for (auto* button : test::descendants<Gtk::ToggleButton>(panel_))
            for (auto* label : test::descendants<Gtk::Label>(*button))
                if (label->get_text() == title)
                    return *button;
        throw std::out_of_range(title);
    }
    bool hasText(const Glib::ustring& text) {
        return std::ranges::any_of(
            test::descendants<Gtk::Label>(panel_),
            [&](const Gtk::Label* label) { return label->get_text() == text; });
    }
    static void press(Gtk::Button& button) { g_signal_emit_by_name(button.gobj(), "clicked"); }

    test::TempFolder folder_;
    SettingsStore settings_{folder_ / "settings.ini"};
    AdwAppearance appearance_;
    NotificationCenter notifications_;
    test::ManualClock clock_;
    ThemeManager theme_{settings_, appearance_, notifications_, clock_};
    ThemeStyle style_{theme_};
    Gtk::Window window_;
    ThemeSettingsView panel_{theme_, std::vector<GridColumn>(7, {26, 8})};
};

} // namespace

TEST_F(ThemeSettingsViewTest, ShowsGoldInDarkWithItsAccent) {
    theme_.setAppearanceMode("dark");
    theme_.setActivePresetId("gold");
    Gtk::ToggleButton& dark = modeButton("Tối");
    EXPECT_TRUE(dark.get_active());
    EXPECT_FALSE(modeButton("Sáng").get_active());
    EXPECT_EQ(selectedSwatches(), std::vector<std::string>{"gold"});
    EXPECT_TRUE(hasText("Vàng hoàng kim (Gold)"));
    const Rgba gold = rgbaFromHex("#FBBF24");
    EXPECT_TRUE(test::runUntil([&] {
        return test::nearlyEqual(test::WidgetPicture(dark).at(4, dark.get_height() / 2.0), gold);
    }));
    EXPECT_TRUE(test::runUntil(
        [&] { return test::nearlyEqual(test::WidgetPicture(swatch("gold")).at(13, 5), gold); }));
}

TEST_F(ThemeSettingsViewTest, TakesTheForcedAppearanceAwayWithAutomatic) {
    press(modeButton("Tối"));
    EXPECT_EQ(theme_.appearanceMode(), "dark");
    EXPECT_TRUE(appearance_.isEffectivelyDark());
    press(modeButton("Tự động"));
    EXPECT_EQ(theme_.appearanceMode(), "system");
    EXPECT_TRUE(modeButton("Tự động").get_active());
    EXPECT_FALSE(modeButton("Tối").get_active());
    EXPECT_FALSE(appearance_.isEffectivelyDark()) << "the test's desktop is light";
    clock_.advance(std::chrono::seconds(1));
}

TEST_F(ThemeSettingsViewTest, LeavesAPressedChoiceSelected) {
    press(swatch("ruby"));
    EXPECT_EQ(selectedSwatches(), std::vector<std::string>{"ruby"});
    const Uuid trigger = theme_.themeUpdateTrigger();
    press(swatch("ruby"));
    EXPECT_EQ(selectedSwatches(), std::vector<std::string>{"ruby"});
    EXPECT_NE(theme_.themeUpdateTrigger(), trigger);
    EXPECT_EQ(settings_.text(ThemeManager::activePresetIdKey), "ruby");

    press(modeButton("Sáng"));
    press(modeButton("Sáng"));
    EXPECT_TRUE(modeButton("Sáng").get_active());
}

TEST_F(ThemeSettingsViewTest, SelectsNothingForUnknownTexts) {
    theme_.setAppearanceMode("sepia");
    theme_.setActivePresetId("none of them");
    for (const char* title : {"Sáng", "Tối", "Tự động"})
        EXPECT_FALSE(modeButton(title).get_active()) << title;
    EXPECT_TRUE(selectedSwatches().empty());
    EXPECT_TRUE(hasText("Ngọc lục bảo (Emerald)"));
    press(swatch("slate"));
    EXPECT_EQ(theme_.activePreset().id, "slate");
}

TEST_F(ThemeSettingsViewTest, LaysSevenSwatchesInARowAndTheFiftiethAlone) {
    const auto place = [&](const std::string& id) {
        double x = 0;
        double y = 0;
        swatch(id).translate_coordinates(panel_, 0, 0, x, y);
        return std::pair(x, y);
    };
    ASSERT_TRUE(test::runUntil([&] { return place("mint").first > place("emerald").first; }));
    const auto [left, top] = place("emerald");
    EXPECT_EQ(place("mint"), std::pair(left + 34, top)) << "26 wide, 8 apart";
    EXPECT_EQ(place("jade"), std::pair(left + 6 * 34, top));
    EXPECT_EQ(place("pistachio"), std::pair(left, top + 34));
    EXPECT_EQ(panel_.get_width() + 2 * panel_.get_margin_start(), 270);
    EXPECT_EQ(panel_.get_height() + 2 * panel_.get_margin_top(), 350);

    const auto scrolled = test::descendants<Gtk::ScrolledWindow>(panel_).front()->get_vadjustment();
    scrolled->set_value(scrolled->get_upper());
    ASSERT_TRUE(test::runUntil([&] { return swatch("cocoa").get_width() == 26; }));
    EXPECT_EQ(place("cocoa").first, left);
    EXPECT_EQ(place("cocoa").second, place("taupe").second + 34);
}

TEST_F(ThemeSettingsViewTest, AnnouncesNamesAndWhatIsSelected) {
    theme_.setActivePresetId("gold");
    const auto isPressed = [&](const std::string& id) {
        // Answers with the state that is there when it is another.
        return takeString(gtk_test_accessible_check_state(
                              GTK_ACCESSIBLE(swatch(id).gobj()), GTK_ACCESSIBLE_STATE_PRESSED,
                              GTK_ACCESSIBLE_TRISTATE_TRUE))
            .empty();
    };
    EXPECT_TRUE(isPressed("gold"));
    EXPECT_FALSE(isPressed("mint"));
    EXPECT_EQ(
        takeString(gtk_test_accessible_check_property(
            GTK_ACCESSIBLE(swatch("gold").gobj()), GTK_ACCESSIBLE_PROPERTY_LABEL,
            "Vàng hoàng kim (Gold)")),
        "");
    EXPECT_EQ(swatch("gold").get_tooltip_text(), "Vàng hoàng kim (Gold)");
}
