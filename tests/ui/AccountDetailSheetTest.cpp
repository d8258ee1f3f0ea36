#include "Views/AccountDetailSheet.h"

#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>

using namespace tessaro;
using testing::Contains;
using testing::Not;

namespace {

/// The sheet in front of nothing, with what it saved and whether it was dismissed.
class AccountDetailSheetTest : public testing::Test {
protected:
    struct Saved {
        std::string name, host;
        std::int64_t port;
        std::string user, password;
        bool enabled;
    };

    void open(AccountDetailSheet::Mode mode) {
        sheet_ = std::make_unique<AccountDetailSheet>(
            screen_.context, std::move(mode),
            [this](
                std::string name, std::string host, std::int64_t port, std::string user,
                SecretText password, bool enabled) {
                saved_.push_back({name, host, port, user, password.reveal(), enabled});
            });
        sheet_->onDismiss([this] { ++dismissed_; });
        sheet_->present();
        test::TestScreen::settle(*sheet_);
        ASSERT_TRUE(test::runUntil([this] { return sheet_->is_active(); }));
    }
    Gtk::Entry& field(const std::string& name) {
        auto* found = test::find<Gtk::Entry>(*sheet_, name);
        if (!found)
            throw std::out_of_range(name);
        return *found;
    }
    bool canSave(const std::string& label = "Thêm tài khoản") {
        return test::find<Gtk::Button>(*sheet_, label)->is_sensitive();
    }

    test::TestScreen screen_;
    std::unique_ptr<AccountDetailSheet> sheet_;
    std::vector<Saved> saved_;
    int dismissed_ = 0;
};

Account accountWithProxy() {
    Account account = test::makeAccount("Cửa hàng");
    account.proxyHost = "proxy.example";
    account.proxyPort = 8080;
    account.proxyUsername = "mai";
    account.proxyPassword = SecretText("bí mật");
    account.proxyEnabled = true;
    return account;
}

} // namespace

TEST_F(AccountDetailSheetTest, AddingStartsEmptyWithThisComputersIdentity) {
    open(AccountDetailSheet::Mode::add());
    EXPECT_EQ(field("TÊN TÀI KHOẢN").get_text(), "");
    EXPECT_FALSE(canSave());
    const auto texts = test::textsOnScreen(*sheet_);
    EXPECT_THAT(texts, Contains("Thêm tài khoản mới"));
    EXPECT_THAT(texts, Contains(screen_.device.getDeviceUUID()));
    EXPECT_THAT(texts, Contains(screen_.device.deviceName()));
    EXPECT_EQ(test::find(*sheet_, "Port"), nullptr) << "The proxy's rows are hidden.";
    EXPECT_EQ(sheet_->get_width(), 420);
    EXPECT_EQ(sheet_->get_height(), 460);
}

TEST_F(AccountDetailSheetTest, SavesANameOnceItIsMoreThanBlanks) {
    open(AccountDetailSheet::Mode::add());
    for (const char* blank : {" ", "\t", " \t "}) {
        field("TÊN TÀI KHOẢN").set_text(blank);
        EXPECT_FALSE(canSave());
    }
    field("TÊN TÀI KHOẢN").set_text(" Mai");
    EXPECT_TRUE(canSave());
    test::press(*sheet_, "Thêm tài khoản");
    ASSERT_EQ(saved_.size(), 1u);
    EXPECT_EQ(saved_[0].name, " Mai");
    EXPECT_EQ(dismissed_, 1);
}

TEST_F(AccountDetailSheetTest, SavingWithoutAChangeGivesTheAccountsOwnValuesBack) {
    open(AccountDetailSheet::Mode::edit(accountWithProxy()));
    EXPECT_EQ(field("Port").get_text(), "8080");
    EXPECT_THAT(test::textsOnScreen(*sheet_), Contains("computer")) << "The account's own device.";
    test::press(*sheet_, "Lưu thay đổi");
    ASSERT_EQ(saved_.size(), 1u);
    EXPECT_EQ(saved_[0].name, "Cửa hàng");
    EXPECT_EQ(saved_[0].host, "proxy.example");
    EXPECT_EQ(saved_[0].port, 8080);
    EXPECT_EQ(saved_[0].user, "mai");
    EXPECT_EQ(saved_[0].password, "bí mật");
    EXPECT_TRUE(saved_[0].enabled);
}

TEST_F(AccountDetailSheetTest, HidingTheProxyKeepsItsValues) {
    open(AccountDetailSheet::Mode::edit(accountWithProxy()));
    test::widgetsOf<Gtk::Switch>(*sheet_).at(0)->set_active(false);
    EXPECT_TRUE(test::runUntil([this] { return !test::find(*sheet_, "Port"); }));
    test::press(*sheet_, "Lưu thay đổi");
    ASSERT_EQ(saved_.size(), 1u);
    EXPECT_EQ(saved_[0].host, "proxy.example");
    EXPECT_EQ(saved_[0].port, 8080);
    EXPECT_EQ(saved_[0].password, "bí mật");
    EXPECT_FALSE(saved_[0].enabled);
}

TEST_F(AccountDetailSheetTest, ShowsNoPortBelowOne) {
    Account account = accountWithProxy();
    account.proxyPort = 0;
    open(AccountDetailSheet::Mode::edit(account));
    EXPECT_EQ(field("Port").get_text(), "");
}

TEST_F(AccountDetailSheetTest, EscapeDismissesAndReturnSaves) {
    open(AccountDetailSheet::Mode::edit(accountWithProxy()));
    test::Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(test::runUntil([this] { return dismissed_ == 1; }));
    EXPECT_TRUE(saved_.empty());
    test::Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(test::runUntil([this] { return dismissed_ == 2; }));
    EXPECT_EQ(saved_.size(), 1u);
}

TEST_F(AccountDetailSheetTest, ReturnDoesNothingWhileSavingIsDisabled) {
    open(AccountDetailSheet::Mode::add());
    test::Keyboard::press(GDK_KEY_Return);
    test::TestScreen::settle(*sheet_);
    EXPECT_TRUE(saved_.empty());
    EXPECT_EQ(dismissed_, 0);
}

TEST(AccountDetailSheetPort, IsTheWholeTextOrNothing) {
    const std::pair<const char*, std::int64_t> ports[] = {
        {"8080", 8080},
        {"+21", 21},
        {"-5", -5},
        {"0", 0},
        {"", 0},
        {"8080 ", 0},
        {" 8080", 0},
        {"80a", 0},
        {"+-5", 0},
        {"-+5", 0},
        {"++5", 0},
        {"+", 0},
        {"-", 0},
        {"0x50", 0},
        {"9223372036854775807", 9223372036854775807},
        {"9223372036854775808", 0},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min()},
        {"12345678901234567890", 0},
    };
    for (const auto& [text, port] : ports)
        EXPECT_EQ(AccountDetailSheet::portFromText(text), port) << '"' << text << '"';
}
