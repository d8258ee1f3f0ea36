#include "Views/AddPageSheet.h"

#include "support/Gtk/Keyboard.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>

using namespace tessaro;
using test::FakeGraph;
using testing::Contains;
using testing::Not;

namespace {

constexpr const char* pickedCaption = "Page đã chọn — sẽ dùng Page Access Token";

/// The sheet for one account; a press of its buttons goes to a Graph API that the test holds.
class AddPageSheetTest : public testing::Test {
protected:
    AddPageSheetTest() {
        screen_.graph.addUserToken(
            "three",
            {FakeGraph::page("1", "mai"), FakeGraph::page("2", ""), FakeGraph::page("3", "Lan")});
        screen_.graph.addUserToken("one", {FakeGraph::page("1", "mai")});
        screen_.graph.objects["page"] = PageInfo{PageId{"4"}, "Cúc", std::nullopt};
        pagesVM_.loadPages(account_.id);
        open();
    }

    void open() {
        sheet_ = std::make_unique<AddPageSheet>(screen_.context, pagesVM_, account_);
        sheet_->onDismiss([this] { ++dismissed_; });
        sheet_->present();
        test::TestScreen::settle(*sheet_);
        EXPECT_TRUE(test::runUntil([this] { return sheet_->is_active(); }));
    }
    Gtk::TextView& editor() { return *test::find<Gtk::TextView>(*sheet_, "ACCESS TOKEN"); }
    void paste(const std::string& token) { editor().get_buffer()->set_text(token); }
    VerifyButton& verify() { return *test::widgetsOf<VerifyButton>(*sheet_).at(0); }
    bool canAdd() { return test::find<Gtk::Button>(*sheet_, "Thêm Page")->is_sensitive(); }
    void verifyToken(const std::string& token) {
        paste(token);
        test::press(*sheet_, "Xác minh Token");
        test::TestScreen::settle(*sheet_);
    }
    std::vector<std::string> texts() { return test::textsOnScreen(*sheet_); }
    bool isPicked(const std::string& name) {
        return test::find<PagePickerRow>(*sheet_, name)->has_css_class("selected");
    }

    test::TestScreen screen_;
    Account account_ = test::makeAccount();
    PagesViewModel pagesVM_{screen_.store, screen_.logger, screen_.clock, screen_.graph.factory()};
    std::unique_ptr<AddPageSheet> sheet_;
    int dismissed_ = 0;
};

} // namespace

TEST_F(AddPageSheetTest, OffersToVerifyOnlyATokenThatIsMoreThanBlanks) {
    EXPECT_FALSE(verify().is_sensitive());
    paste(" \n\t ");
    EXPECT_FALSE(verify().is_sensitive());
    paste("\n token ");
    EXPECT_TRUE(verify().is_sensitive());
    EXPECT_FALSE(canAdd());
    EXPECT_EQ(sheet_->get_width(), 460);
    EXPECT_EQ(sheet_->get_height(), 540);
}

TEST_F(AddPageSheetTest, SpinsAndWaitsWhileATokenIsVerified) {
    verifyToken("one");
    EXPECT_TRUE(canAdd());
    screen_.graph.gate.shut();
    verifyToken("one");
    EXPECT_TRUE(verify().isSpinning());
    EXPECT_FALSE(verify().is_sensitive());
    EXPECT_FALSE(canAdd()) << "The earlier result is gone.";
    EXPECT_TRUE(test::runUntil([this] { return !test::find(*sheet_, pickedCaption); }));
    screen_.graph.gate.open();
    EXPECT_FALSE(verify().isSpinning());
    EXPECT_TRUE(verify().is_sensitive());
    EXPECT_TRUE(canAdd());
}

TEST_F(AddPageSheetTest, OnePageOfAUserTokenIsPickedAlready) {
    verifyToken("one");
    EXPECT_TRUE(isPicked("mai"));
    EXPECT_THAT(texts(), Contains("Đây là User Token. Chọn Page bạn muốn kết nối:"));
    EXPECT_TRUE(
        test::runUntil([this] { return testing::Matches(Contains(pickedCaption))(texts()); }));
}

TEST_F(AddPageSheetTest, OneOfSeveralPagesIsAddedOnceItIsPicked) {
    verifyToken("three");
    EXPECT_FALSE(canAdd());
    const auto tiles = test::widgetsOf<RemotePageImage>(*sheet_);
    ASSERT_EQ(tiles.size(), 3u);
    EXPECT_EQ(tiles[0]->initial(), "M");
    EXPECT_EQ(tiles[1]->initial(), "P") << "The letter of a Page without a name.";

    test::press(*sheet_, "mai");
    test::press(*sheet_, "Lan");
    EXPECT_FALSE(isPicked("mai"));
    EXPECT_TRUE(isPicked("Lan"));
    test::press(*sheet_, "Thêm Page");
    EXPECT_EQ(dismissed_, 1);
    ASSERT_EQ(pagesVM_.pages->size(), 1u);
    EXPECT_EQ(pagesVM_.pages->at(0).pageToken.reveal(), "page-token-3");
}

TEST_F(AddPageSheetTest, ShowsThePageOfAPageToken) {
    verifyToken("page");
    EXPECT_THAT(texts(), Contains("Page Token hợp lệ"));
    EXPECT_THAT(texts(), Contains("ID: 4"));
    EXPECT_TRUE(canAdd());
    EXPECT_TRUE(test::widgetsOf<PagePickerRow>(*sheet_).empty());
}

TEST_F(AddPageSheetTest, StaysOpenWithTheReasonWhenAddingFails) {
    verifyToken("bad");
    EXPECT_THAT(texts(), Contains(FakeGraph::refusal));
    EXPECT_FALSE(canAdd());

    verifyToken("one");
    EXPECT_THAT(texts(), Not(Contains(FakeGraph::refusal)));
    test::press(*sheet_, "Thêm Page");
    open();
    verifyToken("one");
    test::press(*sheet_, "Thêm Page");
    test::TestScreen::settle(*sheet_);
    EXPECT_THAT(texts(), Contains("Page \"mai\" đã tồn tại trong tài khoản này."));
    EXPECT_EQ(dismissed_, 1);
}

TEST_F(AddPageSheetTest, ReturnAddsOnlyWhatCanBeAddedAndTabLeavesTheToken) {
    paste("page");
    editor().grab_focus();
    test::Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(pagesVM_.pages->empty());
    EXPECT_EQ(dismissed_, 0);
    test::Keyboard::press(GDK_KEY_Tab);
    EXPECT_TRUE(test::runUntil([this] { return verify().has_focus(); }));
    test::Keyboard::press(GDK_KEY_space);
    ASSERT_TRUE(test::runUntil([this] { return canAdd(); }));
    editor().grab_focus();
    test::Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(test::runUntil([this] { return dismissed_ == 1; }));
    EXPECT_EQ(pagesVM_.pages->at(0).pageToken.reveal(), "page");
}

TEST_F(AddPageSheetTest, EscapeDismissesAlsoFromTheToken) {
    editor().grab_focus();
    test::Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(test::runUntil([this] { return dismissed_ == 1; }));
}

TEST_F(AddPageSheetTest, MayBeDroppedWhileATokenIsVerifiedOrAPageIsAdded) {
    screen_.graph.gate.shut();
    verifyToken("one");
    sheet_.reset();
    screen_.graph.gate.open();

    open();
    verifyToken("one");
    screen_.graph.gate.shut();
    test::press(*sheet_, "Thêm Page");
    sheet_.reset();
    screen_.graph.gate.open();
    EXPECT_EQ(dismissed_, 0);
    EXPECT_EQ(pagesVM_.pages->size(), 1u) << "The model goes on without the sheet.";
}
