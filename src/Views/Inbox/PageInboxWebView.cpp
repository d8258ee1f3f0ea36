#include "Views/Inbox/PageInboxWebView.h"

#include "Views/Inbox/Coordinator.h"

namespace tessaro {

std::unique_ptr<Coordinator> PageInboxWebView::makeCoordinator() const {
    return std::make_unique<Coordinator>(*this);
}

std::unique_ptr<ClippedWebViewContainer>
PageInboxWebView::makeView(Coordinator& coordinator, std::shared_ptr<WebView> webView) const {
    coordinator.attach(webView);
    coordinator.setupNotifications();
    coordinator.openInbox(pageId, inboxURL());
    return std::make_unique<ClippedWebViewContainer>(std::move(webView));
}

void PageInboxWebView::updateView(ClippedWebViewContainer&, Coordinator& coordinator) const {
    if (coordinator.currentPageId() != pageId)
        coordinator.openInbox(pageId, inboxURL());
}

std::string PageInboxWebView::inboxURL() const {
    return context.endpoints.inboxAddress(pageId);
}

} // namespace tessaro
