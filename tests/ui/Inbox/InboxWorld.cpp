#include "ui/Inbox/InboxWorld.h"

#include <webkit/webkit.h>

#include <optional>
#include <stdexcept>
#include <vector>

namespace tessaro::test {

InboxWorld::InboxWorld(Clock& browserClock)
    : browserContext{theme, notifications, settings, browserClock, desktop, modals,
                     store, device,        images,   endpoints,    {}} {
    endpoints.inboxOrigin = server.origin();
    server.answer(inboxPath, page("<title>inbox</title><p>inbox"));
    for (LoopbackServer* each : {&server, &otherServer})
        each->answer("/elsewhere", page("<title>elsewhere</title><p>elsewhere"));
}

std::unique_ptr<WebSession> InboxWorld::newSession() {
    // Views that script runs still hold outlive the test, and the engine crashes when the last view
    // of a session takes it along.
    static std::vector<WebSession> kept;
    return std::make_unique<WebSession>(kept.emplace_back(folder / "web", folder / "web-cache"));
}

LoopbackServer::Answer InboxWorld::page(const std::string& body, const std::string& cookie) {
    LoopbackServer::Answer answer{
        .body = "<!DOCTYPE html>" + body,
        .headers = {{"Content-Type", "text/html; charset=utf-8"}}};
    if (!cookie.empty())
        answer.headers["Set-Cookie"] = cookie;
    return answer;
}

DemoWorld::DemoWorld() {
    if (!site.listen(0))
        throw std::runtime_error("the demo server does not listen");
    endpoints.inboxOrigin = site.origin();
}

InboxBrowser::InboxBrowser(InboxWorld& world, const std::string& pageId)
    : InboxBrowser(world.browserContext, *world.session, pageId) {}

InboxBrowser::InboxBrowser(
    const ScreenContext& context, const WebSession& session, const std::string& pageId)
    : context_(context) {
    loadingChanged_ =
        isLoading->observe([this] { ++(isLoading->get() ? startedLoads : endedLoads); });
    coordinator = host(pageId).makeCoordinator();
    container = host(pageId).makeView(
        *coordinator, std::make_shared<WebView>(session, context.clock, [&context] {
            return SiteNotifications::permittedOrigin(context);
        }));
    window.set_default_size(800, 600);
    window.set_child(*container);
    window.present();
}

InboxBrowser::~InboxBrowser() = default;

PageInboxWebView InboxBrowser::host(const std::string& pageId) const {
    return {context_, pageId, isLoading};
}

void InboxBrowser::show(const std::string& pageId) {
    host(pageId).updateView(*container, *coordinator);
}

bool InboxBrowser::waitForLoads(int count) {
    return runUntil([&] { return endedLoads >= count; });
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

std::string InboxBrowser::ask(const std::string& expression) {
    return test::ask(webView(), expression);
}

bool InboxBrowser::waitUntil(const std::string& expression) {
    return runUntil([&] { return ask(expression) == "true"; });
}

bool InboxBrowser::waitForConversations() {
    return waitUntil("!!document.querySelector('.conversations button')");
}

void InboxBrowser::follow(const std::string& address) {
    webView().evaluateScript("location.href = '" + address + "'");
}

} // namespace tessaro::test
