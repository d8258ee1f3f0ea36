#include "Views/Shell/GtkModals.h"

#include "support/Gtk/TestScreen.h"

#include <adwaita.h>
#include <gmock/gmock.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre;

namespace {

class AlertsInFrontOfTheWindow : public testing::Test {
protected:
    void SetUp() override {
        window_.present();
        TestScreen::settle(window_);
    }

    void show(const std::string& title) {
        modals_->show(
            {title, "<b>" + title + "</b>", {{"Xóa"}, {"Hủy", true}}},
            [this](auto button) { answers_.push_back(button); });
    }
    /// The one alert on screen; a failure when there are several.
    static Gtk::Window* alert() {
        Gtk::Window* found = nullptr;
        for (auto* window : Gtk::Window::list_toplevels())
            if (ADW_IS_MESSAGE_DIALOG(window->gobj()) && window->get_visible()) {
                EXPECT_FALSE(found) << "two alerts at once";
                found = window;
            }
        return found;
    }
    bool isInFront(const std::string& title, const Gtk::Window& over) {
        return alert() && alert()->get_transient_for() == &over && alert()->get_modal() &&
               adw_message_dialog_get_heading(ADW_MESSAGE_DIALOG(alert()->gobj())) == title;
    }

    Gtk::Window window_;
    std::vector<std::size_t> answers_;
    std::optional<GtkModals> modals_{std::in_place, window_};
};

TEST_F(AlertsInFrontOfTheWindow, FollowOneAnotherAndAreAnsweredOnceEachByPressOrByClosing) {
    show("một");
    show("hai");
    ASSERT_TRUE(isInFront("một", window_));
    TestScreen::settle(*alert());
    EXPECT_TRUE(showsText(*alert(), "<b>một</b>")) << "markup in a message is text";
    press(*alert(), "Xóa");
    ASSERT_TRUE(runUntil([&] { return answers_.size() == 1; }));
    ASSERT_TRUE(isInFront("hai", window_));
    alert()->close();
    ASSERT_TRUE(runUntil([&] { return answers_.size() == 2; }));
    EXPECT_THAT(answers_, ElementsAre(0, 1));
    EXPECT_FALSE(alert());
}

TEST_F(AlertsInFrontOfTheWindow, StandInFrontOfASheetAreCancelledWithItAndLeaveWithTheirOwner) {
    Gtk::Window sheet;
    sheet.set_transient_for(window_);
    sheet.set_modal(true);
    sheet.present();
    show("một");
    show("hai");
    EXPECT_TRUE(isInFront("một", sheet));
    gtk_window_destroy(alert()->gobj());
    EXPECT_TRUE(isInFront("hai", sheet));
    modals_.reset();
    EXPECT_FALSE(alert());
    EXPECT_THAT(answers_, ElementsAre(1));
}

} // namespace
