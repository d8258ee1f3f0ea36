#include "Views/Inbox/SiteNotifications.h"

namespace tessaro {

SiteNotifications::SiteNotifications(
    const ScreenContext& context, const std::shared_ptr<WebView>& webView)
    : context_(context), webView_(webView) {
    webView->notifications().setDelegate(this);
}

SiteNotifications::~SiteNotifications() {
    if (const auto webView = webView_.lock())
        webView->notifications().setDelegate(nullptr);
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
