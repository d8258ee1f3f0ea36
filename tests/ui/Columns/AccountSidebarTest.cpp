#include "Views/Columns/AccountSidebar.h"

#include "Views/Columns/AccountButton.h"
#include "Views/Sheets/AccountDetailSheet.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

class AccountSidebarTest : public testing::Test {
protected:
    ~AccountSidebarTest() override { screen_.window.unset_child(); }

    void show(std::vector<Account> accounts) {
        screen_.store.saveAccounts(std::move(accounts));
        viewModel_.emplace(screen_.store, screen_.device, screen_.clock);
        sidebar_.emplace(screen_.context, *viewModel_);
        screen_.show(*sidebar_);
    }
    AccountButton& button(const std::string& name) { return the<AccountButton>(*sidebar_, name); }
    Gdk::RGBA pixel(const std::string& name, double x, double y) {
        screen_.settle();
        return WidgetPicture(button(name)).at(x, y);
    }

    TestScreen screen_;
    std::optional<AccountsViewModel> viewModel_;
    std::optional<AccountSidebar> sidebar_;
};

} // namespace

TEST_F(AccountSidebarTest, DrawsInitialsTheProxysDotAndTheSelectionInTheAccent) {
    Account proxied = makeAccount("bình");
    proxied.proxyEnabled = true;
    show({makeAccount("ánh"), proxied});
    EXPECT_TRUE(find<Gtk::Label>(button("bình"), "B"));
    const auto hasDot = [&] { return nearlyEqual(pixel("bình", 33, 33), {1, 0.584, 0, 1}); };
    EXPECT_TRUE(hasDot());
    proxied.proxyEnabled = false;
    viewModel_->updateAccount(proxied);
    EXPECT_FALSE(hasDot());

    click(button("bình"));
    EXPECT_EQ((*viewModel_->selectedAccount)->id, proxied.id);
    for (const char* accent : {"emerald", "gold"}) {
        screen_.theme.setActivePresetId(accent);
        EXPECT_TRUE(nearlyEqual(pixel("bình", 19, 4), screen_.theme.themePrimary())) << accent;
        EXPECT_FALSE(nearlyEqual(pixel("ánh", 19, 4), screen_.theme.themePrimary())) << accent;
    }
}

TEST_F(AccountSidebarTest, TheMenuLeadsToEditingAndDeleting) {
    const Account first = makeAccount("Một"), second = makeAccount("Hai");
    show({first, second});
    button("Hai").grab_focus();
    Keyboard::press(GDK_KEY_Delete);
    EXPECT_EQ(viewModel_->accounts->size(), 2u) << "Nothing is deleted without the menu.";
    const auto openMenu = [&] {
        Keyboard::press(GDK_KEY_F10, GDK_KEY_Shift_L);
        EXPECT_TRUE(runUntil([this] { return find(*sidebar_, "Xóa tài khoản"); }));
    };

    openMenu();
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([] { return shownWindow<AccountDetailSheet>(); }));
    auto& sheet = *shownWindow<AccountDetailSheet>();
    TestScreen::settle(sheet);
    the<Gtk::Entry>(sheet, "TÊN TÀI KHOẢN").set_text("Ba");
    press(sheet, "Lưu thay đổi");
    ASSERT_TRUE(runUntil([] { return !shownWindow<AccountDetailSheet>(); }));
    const Account edited = screen_.newStore().loadAccounts().at(1);
    EXPECT_EQ(edited.id, second.id);
    EXPECT_EQ(edited.deviceId, second.deviceId);
    ASSERT_TRUE(runUntil([this] { return screen_.window.is_active(); }));

    EXPECT_TRUE(runUntil([this] { return button("Ba").has_focus(); })) << "As before the sheet.";
    openMenu();
    Keyboard::press(GDK_KEY_Down);
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([&] { return *viewModel_->accounts == std::vector{first}; }));
}

TEST_F(AccountSidebarTest, ArrowsGoThroughTheColumnAndTabGoesPastIt) {
    show({makeAccount("Một"), makeAccount("Hai"), makeAccount("Ba")});
    const auto hasFocus = [&](const std::string& name) {
        return runUntil([&] { return the<Gtk::Button>(*sidebar_, name).has_focus(); });
    };
    button("Một").grab_focus();
    Keyboard::press(GDK_KEY_Down);
    EXPECT_TRUE(hasFocus("Hai"));
    Keyboard::press(GDK_KEY_Tab);
    EXPECT_TRUE(hasFocus("Quay về Hộp thư"));
    Keyboard::press(GDK_KEY_Tab, GDK_KEY_Shift_L);
    EXPECT_TRUE(hasFocus("Hai")) << "The column remembers where the focus was.";
}

TEST_F(AccountSidebarTest, AThousandAccountsNeedFewButtonsAndTheSelectedOneIsInView) {
    std::vector<Account> accounts;
    for (int i = 0; i < 1000; ++i)
        accounts.push_back(makeAccount(std::to_string(i)));
    show(accounts);
    viewModel_->selectAccount(accounts.back());
    EXPECT_TRUE(runUntil([this] { return find<AccountButton>(*sidebar_, "999"); }));
    EXPECT_LE(descendants<AccountButton>(*sidebar_).size(), 250u);
    viewModel_->deleteAccount(accounts[500]);
    screen_.settle();
    EXPECT_TRUE(find<Gtk::Label>(button("999"), "9"));
}
