#include "ui/Inbox/InboxScreen.h"

#include "support/Gtk/Keyboard.h"

namespace tessaro::test {
namespace {

using namespace std::chrono_literals;

/// An inbox with an answer that is not sent. It asks before it is left.
class LeavingAnInbox : public InboxScreen {
protected:
    static constexpr std::size_t stay = 0, leave = 1;

    void SetUp() override {
        InboxScreen::SetUp();
        window.askBeforeClosing = [this](auto mayClose) {
            content->inbox().requestLeave(std::move(mayClose));
        };
        world.store.saveAccounts({account, other});
        content->accountsVM().loadAccounts();
        writeHalfAnAnswer();
    }
    void writeHalfAnAnswer() {
        // A web page that nobody has touched does not ask.
        clickOn(webView(), ".answer");
        ASSERT_TRUE(waitUntil("document.activeElement.className === 'answer'"));
        type("da");
        ASSERT_TRUE(waitUntil("document.querySelector('.answer').value === 'da'"));
    }
    /// Waits for the next question, which is that one, and answers it.
    void answer(
        std::optional<std::size_t> button, const std::string& title = "Rời trang này?",
        const std::string& yes = "Rời trang") {
        ASSERT_TRUE(runUntil([&] { return world.modals.alerts.size() > answered; }));
        EXPECT_EQ(world.modals.alerts.back().title, title);
        EXPECT_EQ(world.modals.alerts.back().buttons, (std::vector<std::string>{"Ở lại", yes}));
        EXPECT_EQ(world.modals.alerts.size(), ++answered);
        world.modals.answers.back()(button);
    }
    void expectNothingChanged() {
        EXPECT_TRUE(runUntil([&] { return selectedPage() == DemoWorld::flowers; }));
        EXPECT_EQ(*content->accountsVM().selectedAccount, account);
        EXPECT_EQ(ask(webView(), "document.querySelector('.answer').value"), "da");
        EXPECT_FALSE(find(*content, "Đang tải hộp thư..."));
    }

    const Account other = makeAccount("Hai");
    std::size_t answered = 0; ///< Questions so far.
};

TEST_F(LeavingAnInbox, KeepsItAndItsPageWhenThePersonStaysAndLoadsTheOtherOneElse) {
    auto* const browser = &webView();
    ask(webView(), "document.title = '(7) Hoa'");
    for (const auto& button : {std::optional(stay), std::optional<std::size_t>()}) {
        Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L);
        EXPECT_TRUE(runUntil([&] { return selectedPage() == DemoWorld::coffee; }));
        answer(button);
        expectNothingChanged();
        EXPECT_EQ(window.get_title(), "(7) Tessaro");
    }
    ask(webView(), "document.title = '(8) Hoa'");
    EXPECT_TRUE(runUntil([&] { return window.get_title() == "(8) Tessaro"; }));
    EXPECT_EQ(ask(webView(), "Notification.permission"), "default");
    ask(webView(), "Notification.requestPermission()");
    ASSERT_TRUE(runUntil([&] { return world.modals.alerts.size() > answered; }));
    EXPECT_EQ(world.modals.alerts.back().title, "Cho phép hiện thông báo?");
    world.modals.answers.back()(std::nullopt);
    ++answered;

    content->accountsVM().selectAccount(other);
    answer(stay);
    expectNothingChanged();
    const std::function<void()> otherWays[] = {
        [] { Keyboard::press(GDK_KEY_F5); },
        [] { Keyboard::press(GDK_KEY_Home, GDK_KEY_Alt_L); },
        [this] { clickOn(webView(), ".help"); },
        [this] { ask(webView(), "location.href = '/latest/inbox/help'"); },
    };
    for (const auto& way : otherWays) {
        way();
        answer(stay);
        expectNothingChanged();
    }

    Keyboard::press(GDK_KEY_2, GDK_KEY_Control_L);
    answer(leave);
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_EQ(selectedPage(), DemoWorld::coffee);
    EXPECT_EQ(&webView(), browser);
    EXPECT_EQ(world.modals.alerts.size(), answered) << "Asked once.";

    writeHalfAnAnswer();
    content->accountsVM().selectAccount(other);
    answer(leave);
    EXPECT_TRUE(runUntil([&] { return bool(find(*content, "Chọn một Page để mở hộp thư")); }));
    EXPECT_EQ(selectedPage(), "");
}

TEST_F(LeavingAnInbox, IsAskedForBeforeTheWindowCloses) {
    window.close();
    window.close();
    answer(stay);
    expectNothingChanged();
    EXPECT_TRUE(window.get_visible());
    window.close();
    answer(leave);
    EXPECT_TRUE(runUntil([&] { return !window.gobj() || !window.get_visible(); }));
}

TEST_F(LeavingAnInbox, ByClosingTheWindowIsAskedForWhileAFileIsOnItsWayToo) {
    auto& server = world.server;
    server.handle("/file", [](ServerConnection& connection, const auto&) {
        connection.write(
            "HTTP/1.1 200 OK\r\nContent-Type: application/zip\r\nContent-Length: 9999\r\n"
            "Content-Disposition: attachment\r\n\r\n" +
            std::string(5000, 'x'));
        while (connection.pause(std::chrono::milliseconds(5))) {
        }
    });
    ask(webView(), "document.body.appendChild(document.createElement('iframe')).src = '" +
                       server.origin() + "/file'");
    ASSERT_TRUE(runUntil([&] { return find(*content, "Hủy tải xuống") != nullptr; }));
    std::vector<bool> answers;
    const auto close = [&] {
        content->inbox().requestClose([&](bool mayClose) { answers.push_back(mayClose); });
    };
    close();
    answer(std::nullopt, "Đang tải tệp xuống", "Đóng");
    close();
    answer(leave, "Đang tải tệp xuống", "Đóng");
    answer(leave);
    EXPECT_TRUE(runUntil([&] { return answers.size() == 2; }));
    EXPECT_EQ(answers, (std::vector{false, true}));
}

TEST_F(LeavingAnInbox, IsNoQuestionWhereItsPageIsDeletedOrDoesNotAnswer) {
    content->pagesVM().deletePage(content->pagesVM().pages->front());
    EXPECT_TRUE(waitForInbox(DemoWorld::coffee));
    EXPECT_TRUE(world.modals.alerts.empty());

    writeHalfAnAnswer();
    webView().evaluateScript("for (;;) {}");
    const auto start = std::chrono::steady_clock::now();
    content->pagesVM().selectPage(content->pagesVM().pages->back());
    ASSERT_TRUE(waitForInbox(DemoWorld::books));
    EXPECT_LT(std::chrono::steady_clock::now() - start, WebView::leaveTimeout + 8s);
    EXPECT_TRUE(world.modals.alerts.empty());

    webView().evaluateScript("for (;;) {}");
    window.close();
    EXPECT_TRUE(runUntil(
        [&] { return !window.gobj() || !window.get_visible(); }, WebView::leaveTimeout + 3s));
}

} // namespace
} // namespace tessaro::test
