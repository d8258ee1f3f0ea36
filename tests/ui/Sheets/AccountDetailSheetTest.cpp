#include "Views/Sheets/AccountDetailSheet.h"

#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"

#include <gmock/gmock.h>

using namespace tessaro;
using namespace tessaro::test;
using testing::Each, testing::ElementsAre, testing::IsEmpty;

namespace {

/// The sheet without a window behind it. Records what it saves and how often it is dismissed.
class AccountDetailSheetTest : public testing::Test {
protected:
    void open(AccountDetailSheet::Mode mode) {
        sheet_ = std::make_unique<AccountDetailSheet>(
            screen_.context, std::move(mode),
            [this](AccountDraft draft) { saved_.push_back(std::move(draft)); });
        sheet_->onDismiss([this] { ++dismissed_; });
        sheet_->present();
        TestScreen::settle(*sheet_);
        ASSERT_TRUE(runUntil([this] { return sheet_->is_active(); }));
    }

    TestScreen screen_;
    std::unique_ptr<AccountDetailSheet> sheet_;
    std::vector<AccountDraft> saved_;
    int dismissed_ = 0;
};

} // namespace

TEST_F(AccountDetailSheetTest, ReturnSavesANameThatIsMoreThanBlanksAndEscapeNothing) {
    open(AccountDetailSheet::Mode::add());
    auto& name = the<Gtk::Entry>(*sheet_, "TÊN TÀI KHOẢN");
    for (const char* blank : {"", " ", " \t "}) {
        name.set_text(blank);
        Keyboard::press(GDK_KEY_Return);
        EXPECT_FALSE(the<Gtk::Button>(*sheet_, "Thêm tài khoản").is_sensitive());
    }
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 1; }));
    EXPECT_THAT(saved_, IsEmpty());
    name.set_text(" Mai");
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 2; }));
    widgetsOf<Gtk::Switch>(*sheet_).at(0)->grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 3; })) << "Space turns the switch.";
    EXPECT_THAT(saved_, Each(AccountDraft{.name = " Mai"}));
    EXPECT_EQ(saved_.size(), 2u);
}

TEST_F(AccountDetailSheetTest, GivesAnEditedAccountsValuesBackEvenWhenTheProxyIsHidden) {
    Account account = makeAccount("Cửa hàng");
    account.proxyHost = "proxy.example";
    account.proxyPort = 8080;
    account.proxyUsername = "mai";
    account.proxyPassword = SecretText("bí mật");
    account.proxyEnabled = true;
    open(AccountDetailSheet::Mode::edit(account));
    EXPECT_TRUE(showsText(*sheet_, "computer")) << "The account keeps its device.";
    press(*sheet_, "Lưu thay đổi");
    widgetsOf<Gtk::Switch>(*sheet_).at(0)->set_active(false);
    EXPECT_TRUE(runUntil([this] { return !find(*sheet_, "Port"); }));
    press(*sheet_, "Lưu thay đổi");
    const auto values = [](bool enabled) {
        return AccountDraft{"Cửa hàng", "proxy.example",      8080,
                            "mai",      SecretText("bí mật"), enabled};
    };
    EXPECT_THAT(saved_, ElementsAre(values(true), values(false)));
}

TEST_F(AccountDetailSheetTest, TellsAtThePortWhetherItIsOneAndSavesItAsItIs) {
    open(AccountDetailSheet::Mode::add());
    the<Gtk::Entry>(*sheet_, "TÊN TÀI KHOẢN").set_text("Mai");
    widgetsOf<Gtk::Switch>(*sheet_).at(0)->set_active(true);
    ASSERT_TRUE(runUntil([this] { return find<Gtk::Entry>(*sheet_, "Port"); }));
    auto& port = the<Gtk::Entry>(*sheet_, "Port");
    const auto isRefused = [&] {
        const bool isSaid = showsText(*sheet_, "Port phải là một số từ 1 đến 65535.");
        const GCharPtr isNotInvalid(gtk_test_accessible_check_state(
            GTK_ACCESSIBLE(port.gobj()), GTK_ACCESSIBLE_STATE_INVALID,
            GTK_ACCESSIBLE_INVALID_TRUE));
        EXPECT_EQ(isSaid, !isNotInvalid);
        return isSaid;
    };
    for (const char* good : {"", "1", "+21", "65535"}) {
        port.set_text(good);
        EXPECT_FALSE(isRefused()) << good;
    }
    for (const char* bad : {"65536", "0", "8080 ", "cổng", "-5"}) {
        port.set_text(bad);
        EXPECT_TRUE(isRefused()) << bad;
    }
    press(*sheet_, "Thêm tài khoản");
    EXPECT_EQ(saved_.at(0).proxyPort, -5);
}

TEST_F(AccountDetailSheetTest, ReturnOnTheCopyButtonCopiesTheDeviceIdentifierOnly) {
    open(AccountDetailSheet::Mode::edit(makeAccount("Mai")));
    the<Gtk::Button>(*sheet_, "Sao chép Device ID").grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return !screen_.desktop.copied.empty(); }));
    EXPECT_THAT(screen_.desktop.copied, ElementsAre(makeAccount().deviceId));
    EXPECT_THAT(saved_, IsEmpty());
}
