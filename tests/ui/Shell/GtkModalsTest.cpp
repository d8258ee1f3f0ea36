#include "Views/Shell/GtkModals.h"

#include "Views/Shell/AlertWindow.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/TestScreen.h"
#include "support/Repeated.h"

#include <gmock/gmock.h>
#include <gtkmm/adjustment.h>
#include <gtkmm/scrolledwindow.h>

#include <optional>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre, testing::Optional;

namespace {

class AlertsInFrontOfTheWindow : public testing::Test {
protected:
    void SetUp() override {
        window_.present();
        TestScreen::settle(window_);
    }

    void show(const std::string& title, const std::string& message = "<b>một</b>") {
        modals_->show({title, message, {"Ở lại", "Rời trang"}}, [this](auto button) {
            answers_.push_back(button);
        });
    }
    void waitForFocus() {
        ASSERT_TRUE(alert());
        TestScreen::settle(*alert());
        ASSERT_TRUE(runUntil([&] { return alert()->is_active(); }));
    }
    bool waitForAnswers(std::size_t count) {
        return runUntil([=, this] { return answers_.size() == count; });
    }
    /// The one alert that can be answered. Fails when there are several.
    static AlertWindow* alert() {
        AlertWindow* found = nullptr;
        for (auto* window : Gtk::Window::list_toplevels())
            if (auto* each = dynamic_cast<AlertWindow*>(window); each && each->is_sensitive()) {
                EXPECT_FALSE(found) << "two alerts at once";
                found = each;
            }
        return found;
    }
    static bool isInFront(const std::string& title, const Gtk::Window& over) {
        return alert() && alert()->get_transient_for() == &over && alert()->get_modal() &&
               alert()->get_title().raw() == title;
    }

    Gtk::Window window_;
    std::vector<std::optional<std::size_t>> answers_;
    std::optional<GtkModals> modals_{std::in_place, window_};
};

TEST_F(AlertsInFrontOfTheWindow, FollowOneAnotherAndTellTheButtonFromEscapeAndClosing) {
    for (const char* title : {"một", "hai", "ba", "bốn"})
        show(title);
    ASSERT_TRUE(isInFront("một", window_));
    waitForFocus();
    EXPECT_TRUE(showsText(*alert(), "<b>một</b>")) << "Markup in a message is text.";
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(waitForAnswers(1));
    ASSERT_TRUE(isInFront("hai", window_));
    waitForFocus();
    Keyboard::press(GDK_KEY_Escape);
    ASSERT_TRUE(waitForAnswers(2));
    waitForFocus();
    Pointer::click(the<Gtk::Button>(*alert(), "Rời trang"));
    ASSERT_TRUE(waitForAnswers(3));
    alert()->close();
    ASSERT_TRUE(waitForAnswers(4));
    EXPECT_THAT(answers_, ElementsAre(Optional(0), std::nullopt, Optional(1), std::nullopt));
    EXPECT_FALSE(alert());
}

TEST_F(AlertsInFrontOfTheWindow, StandInFrontOfASheetEndWithItAndLeaveWithTheirOwner) {
    std::optional<Gtk::Window> sheet(std::in_place);
    sheet->set_transient_for(window_);
    sheet->set_modal(true);
    sheet->present();
    show("một");
    show("hai");
    EXPECT_TRUE(isInFront("một", *sheet));
    sheet.reset();
    EXPECT_TRUE(isInFront("hai", window_));
    modals_.reset();
    EXPECT_FALSE(alert());
    EXPECT_THAT(answers_, ElementsAre(std::nullopt));
}

TEST_F(AlertsInFrontOfTheWindow, KeepTitleAndButtonsOnTheDisplayWhateverTheirText) {
    const struct {
        std::string title, message;
        bool scrolls;
    } alerts[] = {
        {"Bản Cập Nhật Mới", "Một dòng.", false},
        {"", repeated("Vài chữ nữa trong cùng một đoạn dài. ", 8), false},
        {"Bản Cập Nhật Mới", repeated("• Một dòng trong danh sách\n", 150), true},
        {repeated("Một tiêu đề dài. ", 60), repeated("chữ ", 3000), true},
        {repeated("tiêuđề", 400), repeated("x", 2000), true},
        {"تحديث جديد", repeated("سطر من النص الطويل\n", 200), true},
    };
    for (const auto& [title, message, scrolls] : alerts) {
        SCOPED_TRACE(title.substr(0, 40));
        show(title, message);
        waitForFocus();
        // As large as the toolkit asks for, but no larger than a laptop's display.
        const auto whole = placeOnDisplay(*alert());
        EXPECT_LE(whole.get_width(), 640);
        EXPECT_LE(whole.get_height(), 480);
        for (const char* name : {"Ở lại", "Rời trang"})
            EXPECT_TRUE(isWithin(the<Gtk::Button>(*alert(), name), *alert())) << name;
        EXPECT_TRUE(title.empty() || isWithin(the<Gtk::Label>(*alert(), title), *alert()));
        auto& text = *widgetsOf<Gtk::ScrolledWindow>(*alert()).at(0);
        const auto heights = text.get_vadjustment();
        EXPECT_EQ(heights->get_upper() > heights->get_page_size(), scrolls);
        if (scrolls) { // Keys scroll it too, because the text gets the focus before the buttons.
            Keyboard::press(GDK_KEY_Tab, GDK_KEY_Shift_L);
            Keyboard::press(GDK_KEY_End);
            EXPECT_TRUE(runUntil([&] {
                return heights->get_value() + heights->get_page_size() == heights->get_upper();
            }));
        }
        Keyboard::press(GDK_KEY_Escape);
        ASSERT_TRUE(runUntil([] { return !alert(); }));
    }
}

} // namespace
