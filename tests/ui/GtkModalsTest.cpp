#include "Views/GtkModals.h"

#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <adwaita.h>
#include <gtest/gtest.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;

namespace {

class AlertsInFrontOfTheWindow : public testing::Test {
protected:
    void SetUp() override {
        window_.present();
        TestScreen::settle(window_);
    }

    void show(const std::string& title, std::vector<ModalAlert::Button> buttons = {{"OK"}}) {
        modals_.show({title, "<b>" + title + "</b>", std::move(buttons)}, [this](auto button) {
            answers_.push_back(button);
        });
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
    static std::string titleOf(Gtk::Window* dialog) {
        return dialog ? adw_message_dialog_get_heading(ADW_MESSAGE_DIALOG(dialog->gobj())) : "";
    }

    Gtk::Window window_;
    std::vector<std::size_t> answers_;
    std::optional<GtkModals> owned_{std::in_place, window_};
    GtkModals& modals_ = *owned_;
};

TEST_F(AlertsInFrontOfTheWindow, FollowOneAnotherAndAreAnsweredOnceEach) {
    show("một", {{"Để sau", true}, {"Cập nhật ngay"}});
    show("hai");
    ASSERT_EQ(titleOf(alert()), "một");
    TestScreen::settle(*alert());
    EXPECT_EQ(alert()->get_transient_for(), &window_);
    EXPECT_TRUE(alert()->get_modal());
    const auto texts = textsOnScreen(*alert());
    EXPECT_TRUE(std::ranges::count(texts, "<b>một</b>")) << "markup in a message is text";
    EXPECT_TRUE(answers_.empty());

    press(*alert(), "Cập nhật ngay");
    ASSERT_TRUE(runUntil([&] { return answers_.size() == 1; }));
    EXPECT_EQ(answers_[0], 1);
    ASSERT_EQ(titleOf(alert()), "hai");
    TestScreen::settle(*alert());
    press(*alert(), "OK");
    ASSERT_TRUE(runUntil([&] { return answers_.size() == 2; }));
    EXPECT_EQ(answers_[1], 0);
    EXPECT_FALSE(alert());
}

TEST_F(AlertsInFrontOfTheWindow, ChooseTheCancelButtonWhenClosed) {
    show("một", {{"Xóa"}, {"Hủy", true}});
    alert()->close();
    ASSERT_TRUE(runUntil([&] { return !answers_.empty(); }));
    EXPECT_EQ(answers_, (std::vector<std::size_t>{1}));
}

TEST_F(AlertsInFrontOfTheWindow, StandInFrontOfASheetAndAreCancelledWithIt) {
    Gtk::Window sheet;
    sheet.set_transient_for(window_);
    sheet.set_modal(true);
    sheet.present();
    show("một", {{"Xóa"}, {"Hủy", true}});
    show("hai");
    EXPECT_EQ(alert()->get_transient_for(), &sheet);

    gtk_window_destroy(alert()->gobj());
    EXPECT_EQ(answers_, (std::vector<std::size_t>{1}));
    EXPECT_EQ(titleOf(alert()), "hai");
}

TEST_F(AlertsInFrontOfTheWindow, LeaveWithTheirOwner) {
    show("một");
    show("hai");
    owned_.reset();
    EXPECT_FALSE(alert());
    EXPECT_TRUE(answers_.empty());
}

} // namespace
