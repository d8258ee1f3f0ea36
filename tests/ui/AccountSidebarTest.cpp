#include "Views/AccountSidebar.h"

#include "Views/AccountButton.h"
#include "Views/AccountDetailSheet.h"
#include "Views/InboxCommands.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>

using namespace tessaro;
using testing::ElementsAre;

namespace {

class AccountSidebarTest : public testing::Test {
protected:
    void show(std::vector<Account> accounts) {
        screen_.store.saveAccounts(std::move(accounts));
        viewModel_.emplace(screen_.store, screen_.device, screen_.clock);
        sidebar_.emplace(screen_.context, *viewModel_);
        screen_.show(*sidebar_);
    }
    ~AccountSidebarTest() override { screen_.window.unset_child(); }

    AccountButton& button(const std::string& name) {
        auto* found = test::find<AccountButton>(*sidebar_, name);
        if (!found)
            throw std::out_of_range(name);
        return *found;
    }
    std::vector<std::string> initials() {
        std::vector<std::string> found;
        for (auto* each : test::widgetsOf<AccountButton>(*sidebar_))
            found.push_back(each->face().initial());
        return found;
    }
    /// The sheet in front of the window; null when there is none.
    static AccountDetailSheet* sheet() {
        for (Gtk::Window* window : Gtk::Window::list_toplevels())
            if (auto* found = dynamic_cast<AccountDetailSheet*>(window))
                if (found->get_visible())
                    return found;
        return nullptr;
    }
    Rgba middleTop(Gtk::Widget& face) {
        screen_.settle();
        return test::WidgetPicture(face).at(19, 4);
    }

    test::TestScreen screen_;
    std::optional<AccountsViewModel> viewModel_;
    std::optional<AccountSidebar> sidebar_;
};

} // namespace

TEST_F(AccountSidebarTest, ShowsInitialsAndTheProxysDot) {
    Account proxied = test::makeAccount("bình");
    proxied.proxyEnabled = true;
    show({test::makeAccount(""), proxied, test::makeAccount("ánh")});
    EXPECT_THAT(initials(), ElementsAre("?", "B", "Á"));
    const auto dotCenter = [&](AccountButton& shown) {
        return test::WidgetPicture(shown).at(19 + 14, 19 + 14);
    };
    EXPECT_TRUE(test::nearlyEqual(dotCenter(button("bình")), {1, 0.584, 0, 1}));
    EXPECT_FALSE(button("ánh").face().hasDot());

    proxied.proxyEnabled = false;
    viewModel_->updateAccount(proxied);
    EXPECT_FALSE(button("bình").face().hasDot());
}

TEST_F(AccountSidebarTest, AClickSelectsAndTheAccentFollows) {
    const Account first = test::makeAccount("Một"), second = test::makeAccount("Hai");
    show({first, second});
    test::click(button("Hai"));
    ASSERT_TRUE(viewModel_->selectedAccount->has_value());
    EXPECT_EQ((*viewModel_->selectedAccount)->id, second.id);
    EXPECT_TRUE(test::nearlyEqual(middleTop(button("Hai")), screen_.theme.themePrimary()));
    EXPECT_FALSE(test::nearlyEqual(middleTop(button("Một")), screen_.theme.themePrimary()));
    screen_.theme.setActivePresetId("gold");
    EXPECT_TRUE(test::nearlyEqual(middleTop(button("Hai")), screen_.theme.themePrimary()));
}

TEST_F(AccountSidebarTest, TheMenuKeyLeadsToEditingAndDeleting) {
    const Account first = test::makeAccount("Một"), second = test::makeAccount("Hai");
    show({first, second});
    viewModel_->selectAccount(second);
    button("Hai").grab_focus();
    test::Keyboard::press(GDK_KEY_Delete);
    EXPECT_EQ(viewModel_->accounts->size(), 2u) << "Nothing is deleted without the menu.";

    test::Keyboard::press(GDK_KEY_F10, GDK_KEY_Shift_L);
    ASSERT_TRUE(test::runUntil([this] { return test::find(*sidebar_, "Xóa tài khoản"); }));
    test::Keyboard::press(GDK_KEY_Down); // From "Chỉnh sửa".
    test::Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(test::runUntil([this] { return viewModel_->accounts->size() == 1; }));
    EXPECT_EQ((*viewModel_->selectedAccount)->id, first.id) << "The first one left is selected.";
}

TEST_F(AccountSidebarTest, TheEditorAddsAndEdits) {
    show({});
    test::press(*sidebar_, "Thêm tài khoản");
    ASSERT_TRUE(sheet());
    test::TestScreen::settle(*sheet());
    test::find<Gtk::Entry>(*sheet(), "TÊN TÀI KHOẢN")->set_text("Mới");
    test::press(*sheet(), "Thêm tài khoản");
    EXPECT_TRUE(test::runUntil([] { return !sheet(); }));
    EXPECT_FALSE(*viewModel_->showAddSheet);
    ASSERT_EQ(viewModel_->accounts->size(), 1u);
    const Account added = viewModel_->accounts->front();
    EXPECT_EQ(added.deviceId, screen_.device.getDeviceUUID());

    viewModel_->editingAccount.set(added);
    test::TestScreen::settle(*sheet());
    test::find<Gtk::Entry>(*sheet(), "TÊN TÀI KHOẢN")->set_text("Cũ");
    test::press(*sheet(), "Lưu thay đổi");
    screen_.settle();
    EXPECT_FALSE(viewModel_->editingAccount->has_value());
    const Account edited = screen_.newStore().loadAccounts().at(0);
    EXPECT_EQ(edited.id, added.id);
    EXPECT_EQ(edited.name, "Cũ");
    EXPECT_EQ(edited.deviceId, added.deviceId);
    EXPECT_THAT(initials(), ElementsAre("C"));
}

TEST_F(AccountSidebarTest, CommandsReachTheInboxAndTheTheme) {
    show({});
    std::vector<std::string> heard;
    std::vector<ScopedConnection> connections;
    for (const char* name : {webViewGoHome, webViewReload, webViewZoomIn, webViewZoomOut})
        connections.push_back(screen_.notifications.observe(
            name, [&](const Notification& notification) { heard.push_back(notification.name); }));
    for (const char* tooltip : {"Quay về Hộp thư", "Tải lại trang", "Phóng to", "Thu nhỏ"})
        test::press(*sidebar_, tooltip);
    EXPECT_THAT(heard, ElementsAre(webViewGoHome, webViewReload, webViewZoomIn, webViewZoomOut));
    test::press(*sidebar_, "Chuyển chế độ Sáng/Tối");
    EXPECT_EQ(screen_.theme.appearanceMode(), "dark");
}

TEST_F(AccountSidebarTest, ArrowsGoThroughTheColumnAndTabGoesPastIt) {
    show({test::makeAccount("Một"), test::makeAccount("Hai"), test::makeAccount("Ba")});
    button("Một").grab_focus();
    test::Keyboard::press(GDK_KEY_Down);
    EXPECT_TRUE(test::runUntil([this] { return button("Hai").has_focus(); }));
    test::Keyboard::press(GDK_KEY_Tab);
    auto* home = test::find<Gtk::Button>(*sidebar_, "Quay về Hộp thư");
    EXPECT_TRUE(test::runUntil([&] { return home->has_focus(); }));
    test::Keyboard::press(GDK_KEY_Tab, GDK_KEY_Shift_L);
    EXPECT_TRUE(test::runUntil([this] { return button("Hai").has_focus(); }))
        << "The column remembers where the focus was.";
}

TEST_F(AccountSidebarTest, AThousandAccountsNeedFewButtons) {
    std::vector<Account> accounts;
    for (int i = 0; i < 1000; ++i)
        accounts.push_back(test::makeAccount(std::to_string(i)));
    show(accounts);
    EXPECT_LE(test::descendants<AccountButton>(*sidebar_).size(), 250u);

    viewModel_->selectAccount(accounts.back());
    screen_.settle();
    EXPECT_TRUE(test::runUntil([this] { return test::find<AccountButton>(*sidebar_, "999"); }))
        << "The selected account is brought into view.";
    EXPECT_LE(test::descendants<AccountButton>(*sidebar_).size(), 250u);
    viewModel_->deleteAccount(accounts[500]);
    screen_.settle();
    EXPECT_EQ(button("999").face().initial(), "9");
}
