#include "ui/Inbox/InboxWorld.h"

#include "support/Gtk/Pointer.h"
#include "support/Gtk/TestScreen.h"

#include <webkit/webkit.h>

#include <cmath>
#include <optional>
#include <stdexcept>

namespace tessaro::test {

InboxWorld::InboxWorld(Time time)
    : ScreenWorld(&realEngine()),
      browserContext(
          contextOn(time == Time::passes ? static_cast<Clock&>(SystemClock::shared()) : clock)) {
    endpoints.inboxOrigin = server.origin();
    server.answer(inboxPath, page("<title>inbox</title><p>inbox"));
    for (LoopbackServer* each : {&server, &otherServer})
        each->answer("/elsewhere", page("<title>elsewhere</title><p>elsewhere"));
}

WebSession& InboxWorld::newSession() {
    return loadedEngine()->makeSession(folder / "web", folder / "web-cache");
}

LoopbackServer::Answer InboxWorld::page(const std::string& body) {
    return {
        .body = "<!DOCTYPE html>" + body,
        .headers = {{"Content-Type", "text/html; charset=utf-8"}}};
}

DemoWorld::DemoWorld() {
    if (!site.listen(0))
        throw std::runtime_error("the demo server does not listen");
    endpoints.inboxOrigin = site.origin();
}

InboxBrowser::InboxBrowser(InboxWorld& world, const std::string& pageId) : world_(world) {
    loadingChanged_ =
        isLoading->observe([this] { ++(isLoading->get() ? startedLoads : endedLoads); });
    coordinator = host(pageId).makeCoordinator();
    const auto& context = world.browserContext;
    container =
        host(pageId).makeView(*coordinator, world.session->makeView(context.clock, [&context] {
            return SitePermissions::notifyingOrigin(context);
        }));
    window.set_default_size(800, 600);
    window.set_child(*container);
    window.present();
    EXPECT_TRUE(waitForLoads(1));
}

PageInboxWebView InboxBrowser::host(const std::string& pageId) const {
    return {world_.browserContext, pageId, isLoading};
}

void InboxBrowser::show(const std::string& pageId) {
    host(pageId).updateView(*container, *coordinator);
}

bool InboxBrowser::waitForLoads(int count) {
    return runUntil([&] {
        world_.clock.advance(Clock::Delay::zero()); // The flag changes one turn after the event.
        return endedLoads >= count;
    });
}

std::string ask(WebView& webView, const std::string& expression) {
    std::optional<std::string> answer;
    const std::string script = "String(" + expression + ")";
    webkit_web_view_evaluate_javascript(
        WEBKIT_WEB_VIEW(webView.widget().gobj()), script.c_str(), -1, nullptr, nullptr, nullptr,
        [](GObject* view, GAsyncResult* result, gpointer into) {
            const auto value = GObjectPtr<JSCValue>::adopt(
                webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(view), result, nullptr));
            *static_cast<std::optional<std::string>*>(into) =
                value ? takeString(jsc_value_to_string(value.get())) : "no answer";
        },
        &answer);
    runUntil([&] { return answer.has_value(); }, std::chrono::seconds(30));
    return answer.value_or("no answer in time");
}

bool waitUntil(WebView& webView, const std::string& expression) {
    return runUntil([&] { return ask(webView, expression) == "true"; });
}

void clickOn(WebView& webView, const std::string& selector) {
    // The page must have the size of its place in the window: what it tells of places is of its
    // own layout, which follows the window's in another process.
    auto& widget = webView.widget();
    TestScreen::settle(dynamic_cast<Gtk::Window&>(*widget.get_root()));
    const auto measure = [&](const char* size) {
        return std::lround(std::stod(ask(webView, size)) * webView.pageZoom());
    };
    EXPECT_TRUE(runUntil([&] {
        return std::abs(measure("innerHeight") - widget.get_height()) <= 2 &&
               std::abs(measure("innerWidth") - widget.get_width()) <= 2;
    }));
    const std::string box = "document.querySelector('" + selector + "').getBoundingClientRect()";
    Pointer::click(
        webView.widget(), std::stod(ask(webView, box + ".x + " + box + ".width / 2")),
        std::stod(ask(webView, box + ".y + " + box + ".height / 2")));
}

bool InboxBrowser::waitForConversations() {
    return waitUntil("!!document.querySelector('.conversations button')");
}

void InboxBrowser::leaveFor(const std::string& address) {
    webView().evaluateScript("location.href = '" + address + "'");
}

bool InboxBrowser::follow(const std::string& address) {
    const int before = endedLoads;
    leaveFor(address);
    return waitForLoads(before + 1);
}

} // namespace tessaro::test
