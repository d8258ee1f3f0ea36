#include "Views/Sheets/AddPageSheet.h"

#include "Views/Pictures/SafeAvatarView.h"
#include "support/Gtk/Keyboard.h"
#include "support/Gtk/Pictures.h"
#include "support/Gtk/Pointer.h"
#include "support/Gtk/TestScreen.h"
#include "support/Gtk/WidgetPicture.h"
#include "support/LoopbackServer.h"

#include <gtest/gtest.h>
#include <gtkmm/entry.h>
#include <gtkmm/spinner.h>
#include <gtkmm/viewport.h>
#include <nlohmann/json.hpp>

using namespace tessaro;
using namespace tessaro::test;

namespace {

/// The sheet for one account. The test decides what the Graph API answers, and when.
class AddPageSheetTest : public testing::Test {
protected:
    AddPageSheetTest() {
        screen_.endpoints.graphApiOrigin = graph_.origin();
        describe("4", "Cúc");
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
    Gtk::Button& button(const std::string& name) { return the<Gtk::Button>(*sheet_, name); }
    Gtk::Button& verify() { return button("Xác minh Token"); }
    Gtk::Button& add() { return button("Thêm Page"); }
    bool canAdd() { return add().is_sensitive(); }
    static bool isSpinning(Gtk::Button& of) { return !widgetsOf<Gtk::Spinner>(of).empty(); }
    bool getsFocus(Gtk::Widget& widget) {
        return runUntil([&] { return widget.has_focus(); });
    }
    bool isInView(const std::string& text) {
        return runUntil([&] {
            auto* label = find<Gtk::Label>(*sheet_, text);
            return label && isWithin(*label, *widgetsOf<Gtk::Viewport>(*sheet_).at(0));
        });
    }
    /// Every token is that Page's, except where manage() says otherwise.
    void describe(const std::string& id, const std::string& name) {
        graph_.answer("/v25.0/me", R"({"id":")" + id + R"(","name":")" + name + R"("})");
    }
    /// Every token is that of a user who manages that many Pages. Their names are their numbers.
    /// @param first  the number of the first of them
    /// @param next   the cursor of those that follow; empty for none
    void manage(int count, int first = 1, const std::string& next = "") {
        auto pages = nlohmann::json::array();
        for (int i = first; i < first + count; ++i) {
            const auto name = std::to_string(i);
            pages.push_back({{"id", name}, {"name", name}, {"access_token", "of " + name}});
        }
        nlohmann::json answer{{"data", pages}};
        if (!next.empty())
            answer["paging"] = {{"next", "n"}, {"cursors", {{"after", next}}}};
        graph_.answer("/v25.0/me/accounts", answer.dump());
    }
    void verifyToken() {
        paste("a token");
        press(*sheet_, "Xác minh Token");
        EXPECT_TRUE(waitForEnd(verify()));
        TestScreen::settle(*sheet_);
    }
    static bool waitForEnd(Gtk::Button& of) {
        return runUntil([&] { return !isSpinning(of); });
    }

    LoopbackServer graph_;
    TestScreen screen_;
    Account account_ = makeAccount();
    PagesViewModel pagesVM_{screen_.store, screen_.logger, screen_.clock, screen_.makeGraphClient};
    std::unique_ptr<AddPageSheet> sheet_;
    int dismissed_ = 0;
};

} // namespace

TEST_F(AddPageSheetTest, VerifiesATokenThatIsMoreThanBlanksAndWaitsForTheAnswer) {
    EXPECT_FALSE(verify().is_sensitive());
    paste(" \n\t ");
    EXPECT_FALSE(verify().is_sensitive());
    verifyToken();
    EXPECT_TRUE(showsText(*sheet_, "ID: 4"));
    EXPECT_TRUE(canAdd());
    graph_.hold();
    press(*sheet_, "Xác minh Token");
    EXPECT_TRUE(isSpinning(verify()));
    EXPECT_FALSE(verify().is_sensitive());
    EXPECT_FALSE(canAdd()) << "The earlier result is gone.";
    EXPECT_TRUE(runUntil([this] { return !showsText(*sheet_, "ID: 4"); }));
    graph_.release();
    EXPECT_TRUE(waitForEnd(verify()));
    EXPECT_TRUE(verify().is_sensitive());
    EXPECT_TRUE(canAdd());
}

TEST_F(AddPageSheetTest, ShowsThePicturesOfPagesByTheAccountsProxyEachOnce) {
    LoopbackServer proxy;
    proxy.answer("http://nowhere.example/1.png", pngPicture(80, 80, 0x0000FFFF));
    proxy.answer("http://graph.example/v25.0/me/accounts", R"({"data":[
        {"id":"1","name":"Mai","access_token":"t","picture":{"data":{"url":"http://nowhere.example/1.png"}}},
        {"id":"2","name":"","access_token":"t"}]})");
    account_ = proxiedBy(proxy.port(), account_);
    screen_.store.saveAccounts({account_});
    screen_.endpoints.graphApiOrigin = "http://graph.example";
    open();
    verifyToken();
    const auto pictures = [this] { return widgetsOf<SafeAvatarView>(*sheet_); };
    const auto isBlue = [&](std::size_t index) {
        return runUntil([&] {
            return pictures().size() > index &&
                   nearlyEqual(WidgetPicture(*pictures()[index]).at(18, 3), {0, 0, 1, 1});
        });
    };
    EXPECT_TRUE(isBlue(0));
    EXPECT_EQ(pictures().at(1)->initial(), "P");
    press(*sheet_, "Mai");
    EXPECT_TRUE(isBlue(2)) << "This one belongs to the preview.";
    EXPECT_EQ(proxy.requests().size(), 2u);
}

TEST_F(AddPageSheetTest, TabLeavesTheTokenAndEscapeTheSheet) {
    paste("a token");
    editor().grab_focus();
    Keyboard::press(GDK_KEY_Escape);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 1; }));
    Keyboard::press(GDK_KEY_Tab);
    EXPECT_TRUE(getsFocus(verify()));
}

TEST_F(AddPageSheetTest, ReturnVerifiesThenPicksAndThenAddsWhatIsPicked) {
    manage(3);
    describe("2", "2");
    paste("a token");
    editor().grab_focus();
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([this] { return find<Gtk::Button>(*sheet_, "1"); }));
    EXPECT_TRUE(getsFocus(button("1")));
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([this] { return canAdd(); }));
    button("3").grab_focus();
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([this] { return showsText(*sheet_, "ID: 3"); }));
    TestScreen::settle(*sheet_);
    Pointer::click(button("2"));
    EXPECT_TRUE(pagesVM_.pages->empty());
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([this] { return dismissed_ == 1; }));
    EXPECT_EQ(pagesVM_.pages->at(0).pageToken.reveal(), "of 2");

    verify().grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(isInView("Page \"2\" đã tồn tại trong tài khoản này.")) << "It can be added.";
    button("Hủy").grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(runUntil([this] { return dismissed_ == 2; }));
}

TEST_F(AddPageSheetTest, TheFocusGoesToWhatComesNextUnlessThePersonHasMovedIt) {
    const auto startVerifying = [this] {
        paste("a token");
        graph_.hold("/v25.0/me/accounts");
        Pointer::click(verify());
        EXPECT_TRUE(runUntil([this] { return isSpinning(verify()); }));
    };
    const std::pair<std::function<void()>, std::function<Gtk::Widget&()>> next[] = {
        {[this] { manage(0); }, [this]() -> Gtk::Widget& { return add(); }},
        {[this] { manage(1); }, [this]() -> Gtk::Widget& { return add(); }},
        {[this] { graph_.answer("/v25.0/me/accounts", ""), graph_.answer("/v25.0/me", ""); },
         [this]() -> Gtk::Widget& { return editor(); }},
    };
    for (const auto& [answer, widget] : next) {
        answer();
        startVerifying();
        graph_.release();
        EXPECT_TRUE(getsFocus(widget()));
    }
    manage(1);
    startVerifying();
    button("Hủy").grab_focus();
    graph_.release();
    EXPECT_TRUE(waitForEnd(verify()));
    TestScreen::settle(*sheet_);
    EXPECT_TRUE(button("Hủy").has_focus());
}

TEST_F(AddPageSheetTest, ShowsThePickedPageTheWorkOfAddingAndWhatWentWrong) {
    manage(30);
    verifyToken();
    Pointer::click(button("2"));
    EXPECT_TRUE(isInView("Page đã chọn — sẽ dùng Page Access Token"));
    TestScreen::settle(*sheet_);
    graph_.answer("/v25.0/me", {400, R"({"error":{"message":"Token không hợp lệ."}})", {}});
    graph_.hold("/v25.0/me");
    for (int time = 1; time <= 2; ++time) {
        Pointer::click(add());
        EXPECT_TRUE(runUntil([this] { return isSpinning(add()); }));
        EXPECT_FALSE(canAdd());
    }
    graph_.release();
    EXPECT_TRUE(isInView("Token không hợp lệ."));
    EXPECT_TRUE(getsFocus(add()));
    EXPECT_FALSE(isSpinning(add()));
    EXPECT_EQ(graph_.requestCount("/v25.0/me"), 1u);
}

TEST_F(AddPageSheetTest, LoadsMorePagesOnAClickAndShowsTheFirstOfThem) {
    manage(25, 1, "next");
    verifyToken();
    EXPECT_TRUE(showsText(*sheet_, "25 Page"));
    auto& more = button("Tải thêm Page");
    graph_.answer("/v25.0/me/accounts", {502, "", {}});
    more.grab_focus();
    Keyboard::press(GDK_KEY_Return);
    EXPECT_TRUE(isInView("Lỗi kết nối (502)."));
    EXPECT_TRUE(getsFocus(more)) << "It can be tried again.";
    EXPECT_TRUE(showsText(*sheet_, "25 Page"));

    press(*sheet_, "3");
    TestScreen::settle(*sheet_);
    manage(25, 26);
    more.grab_focus();
    Keyboard::press(GDK_KEY_Return);
    ASSERT_TRUE(runUntil([this] { return showsText(*sheet_, "50 Page"); }));
    EXPECT_TRUE(getsFocus(button("26")));
    TestScreen::settle(*sheet_);
    EXPECT_TRUE(isInView("ID: 26")) << "Not the preview below the list.";
    EXPECT_FALSE(more.get_visible());
    EXPECT_TRUE(pagesVM_.pages->empty()) << "Return has only loaded more.";
}

TEST_F(AddPageSheetTest, FiltersALongListByNameAndKeepsWhatIsPicked) {
    manage(7);
    verifyToken();
    EXPECT_FALSE(find<Gtk::Entry>(*sheet_, "Lọc theo tên Page"));
    manage(12);
    verifyToken();
    press(*sheet_, "3");
    auto& filter = the<Gtk::Entry>(*sheet_, "Lọc theo tên Page");
    filter.set_text(" 1 ");
    EXPECT_TRUE(showsText(*sheet_, "4 trong 12 Page"));
    EXPECT_FALSE(find<Gtk::Button>(*sheet_, "3"));
    EXPECT_TRUE(find<Gtk::Button>(*sheet_, "11"));
    filter.set_text("không có");
    TestScreen::settle(*sheet_);
    EXPECT_TRUE(showsText(*sheet_, "Không có Page nào khớp."));
    EXPECT_TRUE(canAdd());
    verifyToken();
    EXPECT_TRUE(showsText(*sheet_, "12 Page"));
    EXPECT_TRUE(filter.get_text().empty());
}

TEST_F(AddPageSheetTest, AScreenReaderHearsRadioButtonsWithNameAndId) {
    manage(2);
    verifyToken();
    press(*sheet_, "2");
    for (const auto& [name, isPicked] : {std::pair("1", false), std::pair("2", true)}) {
        auto* row = GTK_ACCESSIBLE(button(name).gobj());
        EXPECT_TRUE(gtk_test_accessible_has_role(row, GTK_ACCESSIBLE_ROLE_RADIO));
        const GCharPtr otherState(gtk_test_accessible_check_state(
            row, GTK_ACCESSIBLE_STATE_CHECKED,
            isPicked ? GTK_ACCESSIBLE_TRISTATE_TRUE : GTK_ACCESSIBLE_TRISTATE_FALSE));
        EXPECT_EQ(otherState, nullptr) << name;
        const GCharPtr otherId(gtk_test_accessible_check_property(
            row, GTK_ACCESSIBLE_PROPERTY_DESCRIPTION, ("ID: " + std::string(name)).c_str()));
        EXPECT_EQ(otherId, nullptr) << name;
    }
}
