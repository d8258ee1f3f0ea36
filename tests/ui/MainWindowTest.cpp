#include "Views/MainWindow.h"

#include "Views/InboxCommands.h"
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
        application_->register_application();
        for (const auto* name :
             {focusSearchField, refreshInbox, webViewGoHome, webViewReload, webViewZoomIn,
              webViewZoomOut})
            observers_.push_back(notifications_.observe(
                name, [this](const Notification& posted) { posted_.push_back(posted.name); }));
        window_.emplace(application_, notifications_);
        window_->present();
        TestScreen::settle(*window_);
    }

    Glib::RefPtr<Gtk::Application> application_ =
        Gtk::Application::create("com.vandel.Tessaro.Test", Gio::Application::Flags::NON_UNIQUE);
    NotificationCenter notifications_;
    std::vector<ScopedConnection> observers_;
    std::vector<std::string> posted_;
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

    window_->activate_action("win.focus-search-field");
    window_->activate_action("win.refresh-inbox");
    EXPECT_EQ(posted_, (std::vector<std::string>{focusSearchField, refreshInbox}));
    EXPECT_FALSE(window_->lookup_action("new-window"));
}

} // namespace
