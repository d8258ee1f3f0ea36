#include "Views/Sheets/AddPageSheet.h"

#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

/// The sheet for one account; a press of its buttons goes to a Graph API that the test holds.
class AddPageSheetTest : public testing::Test {
protected:
    AddPageSheetTest() {
        screen_.graph.objects["page"] = PageInfo{PageId{"4"}, "Cúc", std::nullopt};
        screen_.store.saveAccounts({account_});
        pagesVM_.loadPages(account_.id);
        open();
    }

    void open() {
        sheet_ = std::make_unique<AddPageSheet>(screen_.context, pagesVM_, account_);
        sheet_->onDismiss([this] { ++dismissed_; });
        sheet_->present();
        TestScreen::settle(*sheet_);
        EXPECT_TRUE(runUntil([this] { return sheet_->is_active(); }));
    }
    Gtk::TextView& editor() { return the<Gtk::TextView>(*sheet_, "ACCESS TOKEN"); }
    void paste(const std::string& token) { editor().get_buffer()->set_text(token); }
    VerifyButton& verify() { return *widgetsOf<VerifyButton>(*sheet_).at(0); }
    bool canAdd() { return the<Gtk::Button>(*sheet_, "Thêm Page").is_sensitive(); }
    void verifyToken(const std::string& token) {
        paste(token);
        press(*sheet_, "Xác minh Token");
        TestScreen::settle(*sheet_);
    }

    TestScreen screen_;
    Account account_ = makeAccount();
    PagesViewModel pagesVM_{screen_.store, screen_.logger, screen_.clock, screen_.graph.factory()};
    std::unique_ptr<AddPageSheet> sheet_;
    int dismissed_ = 0;
};

} // namespace

TEST_F(AddPageSheetTest, VerifiesATokenThatIsMoreThanBlanksAndWaitsForTheAnswer) {
    EXPECT_FALSE(verify().is_sensitive());
    paste(" \n\t ");
    EXPECT_FALSE(verify().is_sensitive());
    verifyToken("page");
    EXPECT_TRUE(showsText(*sheet_, "ID: 4"));
    EXPECT_TRUE(canAdd());
    screen_.graph.gate.shut();
    verifyToken("page");
    EXPECT_TRUE(verify().isSpinning());
    EXPECT_FALSE(verify().is_sensitive());
    EXPECT_FALSE(canAdd()) << "The earlier result is gone.";
    EXPECT_TRUE(runUntil([this] { return !showsText(*sheet_, "ID: 4"); }));
    screen_.graph.gate.open();
    EXPECT_FALSE(verify().isSpinning());
    EXPECT_TRUE(verify().is_sensitive());
    EXPECT_TRUE(canAdd());
}

TEST_F(AddPageSheetTest, ReturnAddsOnlyWhatCanBeAddedTabLeavesTheTokenAndEscapeTheSheet) {
    paste("page");
    editor().grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(pagesVM_.pages->empty());
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 1; }));
    Keyboard::press(GDK_KEY_Tab);
    EXPECT_TRUE(runUntil([this] { return verify().has_focus(); }));
    Keyboard::press(GDK_KEY_space);
    ASSERT_TRUE(runUntil([this] { return canAdd(); }));
    editor().grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 2; }));
    EXPECT_EQ(pagesVM_.pages->at(0).pageToken.reveal(), "page") << "Return is no part of it.";
}
