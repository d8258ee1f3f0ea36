#include "Views/Inbox/SiteNotifications.h"

namespace tessaro {

namespace {

NotificationConsent consentFor(const ScreenContext& context) {
    return {context.settings, originOf(context.endpoints.inboxOrigin)};
}

} // namespace

SiteNotifications::SiteNotifications(
    const ScreenContext& context, const std::shared_ptr<WebView>& webView)
    : context_(context), webView_(webView), consent_(consentFor(context)) {
    webView->notifications().setDelegate(this);
}

SiteNotifications::~SiteNotifications() {
    if (const auto webView = webView_.lock())
        webView->notifications().setDelegate(nullptr);
}

std::string SiteNotifications::permittedOrigin(const ScreenContext& context) {
    return consentFor(context).permittedOrigin();
}

void SiteNotifications::didRequestPermission(std::function<void(bool)> answer) {
    const auto webView = webView_.lock();
    // While another page is on its way, the address is not of the page that asks.
    if (!webView || webView->isAwaitingPage() ||
        !context_.endpoints.isInboxSite(webView->address())) {
        answer(false);
    } else if (const auto kept = consent_.answer()) {
        answer(*kept);
    } else {
        waiting_->push_back(std::move(answer));
        if (waiting_->size() == 1)
            ask();
    }
}

void SiteNotifications::ask() {
    context_.modals.show(
        {.title = "Cho phép hiện thông báo?",
         .message = context_.endpoints.inboxHost() +
                    " muốn hiện thông báo trên màn hình, chẳng hạn khi có tin nhắn mới. Tessaro "
                    "ghi nhớ câu trả lời.",
         .buttons = {"Không cho phép", "Cho phép"}},
        [waiting = waiting_, consent = consent_](std::optional<std::size_t> button) mutable {
            const bool isGranted = button == 1;
            if (button) // Who only closes the question is asked again.
                consent.keep(isGranted);
            for (const auto& answer : std::exchange(*waiting, {}))
                answer(isGranted);
        });
}

void SiteNotifications::show(const WebNotifications::Content& content) {
    context_.desktop.showNotification(
        {content.id, content.title, content.body},
        [&requested = context_.inbox.requested, webView = webView_, pageId = pageId_,
         id = content.id](const std::string& activationToken) {
            requested.emit(pageId, activationToken);
            if (const auto view = webView.lock())
                view->notifications().click(id);
        });
}

void SiteNotifications::didClose(const std::string& id) {
    // A page that gives way to another one closes what it has shown; the person may still want it.
    if (const auto webView = webView_.lock(); webView && !webView->isLoading())
        context_.desktop.withdrawNotification(id);
}

} // namespace tessaro
