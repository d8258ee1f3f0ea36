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
