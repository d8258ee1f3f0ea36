#include "ui/Inbox/InboxScreen.h"

#include "support/Gtk/Keyboard.h"

namespace tessaro::test {

namespace {

/// One application for all tests, because it stays on the bus until the process ends.
const Glib::RefPtr<Gtk::Application>& application() {
    static const auto registered = [] {
        auto result = Gtk::Application::create(
            "com.vandel.Tessaro.Test", Gio::Application::Flags::NON_UNIQUE);
        result->register_application();
        return result;
    }();
    return registered;
}

} // namespace

InboxScreen::InboxScreen()
    : window(application(), world.notifications, world.inbox, realEngine(), world.settings) {}

InboxScreen::~InboxScreen() {
    if (window.gobj()) // Null when the test has closed it.
        window.unset_child();
}

void InboxScreen::SetUp() {
    world.store.saveAccounts({account});
    world.store.savePages(
        {makePage(account, DemoWorld::flowers), makePage(account, DemoWorld::coffee),
         makePage(account, DemoWorld::books)});
    content.emplace(world.browserContext, support);
    window.set_child(*content);
    window.present();
    content->accountsVM().selectAccount(account);
    content->pagesVM().selectPage(content->pagesVM().pages->front());
    ASSERT_TRUE(runUntil([&] { return window.is_active(); }));
    ASSERT_TRUE(waitForInbox(DemoWorld::flowers));
    webView().widget().grab_focus();
}

bool InboxScreen::waitForInbox(const std::string& pageId) {
    return waitUntil(
               "!!document.querySelector('.conversations button') && "
               "location.search === '?asset_id=" +
               pageId + "'") &&
           runUntil([&] { return !find(*content, "Đang tải hộp thư..."); });
}

void InboxScreen::type(const std::string& letters) {
    for (const char letter : letters)
        Keyboard::press(gdk_unicode_to_keyval(static_cast<guint32>(letter)));
}

std::string InboxScreen::selectedPage() {
    const auto& page = *content->pagesVM().selectedPage;
    return page ? page->pageId.text : "";
}

} // namespace tessaro::test
