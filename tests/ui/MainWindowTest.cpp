#include "Views/MainWindow.h"

#include "Platform/Paths.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestApplication.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

class TheMainWindow : public testing::Test {
protected:
    void SetUp() override {
        window_.emplace(application(), notifications_);
        window_->present();
        TestScreen::settle(*window_);
    }

    static Gtk::Window* windowCalled(const Glib::ustring& title) {
        for (auto* window : Gtk::Window::list_toplevels())
            if (window->get_title() == title && window->get_visible())
                return window;
        return nullptr;
    }

    NotificationCenter notifications_;
    std::optional<MainWindow> window_;
};

TEST_F(TheMainWindow, OffersTheTwoCommandsInAMenu) {
    EXPECT_EQ(window_->get_title(), "Tessaro");
    const auto buttons = widgetsOf<Gtk::MenuButton>(*window_);
    const auto found = std::ranges::find(buttons, "Trò Chuyện", &Gtk::MenuButton::get_label);
    ASSERT_NE(found, buttons.end());
    auto* const button = *found;
    button->popup();
    ASSERT_TRUE(
        runUntil([&] { return button->get_popover() && button->get_popover()->get_mapped(); }));
    const auto texts = textsOnScreen(*button->get_popover());
    for (const auto* text : {"Tìm kiếm cuộc trò chuyện", "Ctrl+K", "Làm mới hộp thư", "Ctrl+R"})
        EXPECT_EQ(std::ranges::count(texts, text), 1) << text;
    button->popdown();

    EXPECT_FALSE(window_->lookup_action("new-window"));
}

TEST_F(TheMainWindow, ListsItsKeysAndTellsAboutItself) {
    gtk_widget_activate_action(GTK_WIDGET(window_->gobj()), "win.shortcuts", nullptr);
    auto* const shortcuts = windowCalled("Phím tắt");
    ASSERT_TRUE(shortcuts);
    TestScreen::settle(*shortcuts);
    const auto keys = textsOnScreen(*shortcuts);
    for (const auto* command : {"Tìm kiếm cuộc trò chuyện", "Làm mới hộp thư", "Tìm trong trang"})
        EXPECT_EQ(std::ranges::count(keys, command), 1) << command;
    ASSERT_TRUE(runUntil([&] { return shortcuts->is_active(); }));
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(runUntil([] { return !windowCalled("Phím tắt"); }));

    gtk_widget_activate_action(GTK_WIDGET(window_->gobj()), "win.about", nullptr);
    auto* const about = windowCalled("Giới thiệu Tessaro");
    ASSERT_TRUE(about);
    TestScreen::settle(*about);
    const auto lines = textsOnScreen(*about);
    EXPECT_EQ(std::ranges::count(lines, "Phiên bản 1.2.0"), 1);
    EXPECT_TRUE(std::ranges::any_of(
        lines, [](const std::string& line) { return line.starts_with("WebKitGTK 2."); }));
    EXPECT_EQ(std::ranges::count(lines, "Dữ liệu: " + paths::dataFolder().string()), 1);
}

} // namespace
