#include "Views/Theme/ThemeSettingsView.h"

#include "Platform/Gtk/AdwAppearance.h"
#include "Views/Theme/ColorSwatch.h"
#include "Views/Theme/ThemeManager.h"
#include "Views/Theme/ThemeStyle.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtkmm/scrolledwindow.h>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre, testing::IsEmpty;

namespace {

/// The panel in a shown window, with the real style manager.
class ThemeSettingsViewTest : public testing::Test {
protected:
    ThemeSettingsViewTest() {
        window_.set_child(panel_);
        window_.present();
        EXPECT_TRUE(runUntil([&] { return swatches().size() == 50; }));
    }
    ~ThemeSettingsViewTest() override { theme_.setAppearanceMode("system"); }

    std::vector<ColorSwatch*> swatches() { return descendants<ColorSwatch>(panel_); }
    ColorSwatch& swatch(const std::string& id) {
        const auto all = swatches();
        return **std::ranges::find(all, id, [](const auto* each) { return each->preset().id; });
    }
    /// The names of the pressed buttons: at most a mode and a colour.
    std::vector<std::string> selected() {
        std::vector<std::string> names;
        for (auto* button : descendants<Gtk::ToggleButton>(panel_))
            for (const char* mode : {"Sáng", "Tối", "Tự động"})
                if (button->get_active() && isCalled(*button, mode))
                    names.push_back(mode);
        for (auto* each : swatches())
            if (each->get_active())
                names.push_back(each->preset().id);
        return names;
    }
    static bool isPainted(Gtk::Widget& widget, double x, double y, const char* hex) {
        return runUntil(
            [&] { return nearlyEqual(WidgetPicture(widget).at(x, y), rgbaFromHex(hex)); });
    }

    TempFolder folder_;
    SettingsStore settings_{folder_ / "settings.ini"};
    AdwAppearance appearance_;
    NotificationCenter notifications_;
    ManualClock clock_;
    ThemeManager theme_{settings_, appearance_, notifications_, clock_};
    ThemeStyle style_{theme_};
    Gtk::Window window_;
    ThemeSettingsView panel_{theme_, std::vector<GridColumn>(7, {26, 8})};
};

} // namespace

TEST_F(ThemeSettingsViewTest, ShowsGoldInDarkWithItsAccentAndGoesBackToTheDesktopsChoice) {
    press(panel_, "Tối");
    press(panel_, "Vàng hoàng kim (Gold)");
    EXPECT_TRUE(appearance_.isEffectivelyDark());
    EXPECT_THAT(selected(), ElementsAre("Tối", "gold"));
    EXPECT_TRUE(find<Gtk::Label>(panel_, "Vàng hoàng kim (Gold)"));
    EXPECT_TRUE(isPainted(the<Gtk::ToggleButton>(panel_, "Tối"), 4, 12, "#FBBF24"));
    EXPECT_TRUE(isPainted(swatch("gold"), 13, 5, "#FBBF24"));

    press(panel_, "Tự động");
    EXPECT_THAT(selected(), ElementsAre("Tự động", "gold"));
    EXPECT_FALSE(appearance_.isEffectivelyDark()) << "the test's desktop is light";
    for (int time = 1; time <= 2; ++time) {
        click(swatch("ruby")); // A second press leaves it selected.
        EXPECT_THAT(selected(), ElementsAre("Tự động", "ruby"));
    }
    theme_.setAppearanceMode("sepia");
    theme_.setActivePresetId("none of them");
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(ThemeSettingsViewTest, OpensWhereTheSelectedColourIs) {
    for (const char* id : {"cocoa", "emerald"}) {
        panel_.hide();
        theme_.setActivePresetId(id);
        panel_.show();
        EXPECT_TRUE(runUntil([&] {
            return isWithin(swatch(id), *widgetsOf<Gtk::ScrolledWindow>(panel_).at(0));
        })) << id;
        EXPECT_TRUE(swatch(id).has_focus()) << id;
    }
}
