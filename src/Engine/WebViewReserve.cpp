#include "Engine/WebViewReserve.h"

#include "Engine/WebSandbox.h"

namespace tessaro {

WebViewReserve::WebViewReserve(
    Clock& clock, WebNotifications::PermittedOrigin permittedOrigin,
    std::function<const WebSession&()> session)
    : clock_(clock), permittedOrigin_(std::move(permittedOrigin)), session_(std::move(session)) {}

std::shared_ptr<WebView> WebViewReserve::make() const {
    return std::make_shared<WebView>(session_(), clock_, permittedOrigin_);
}

void WebViewReserve::prepare() {
    if (ready_ || !webSandboxWorks())
        return;
    ready_ = make();
    // The engine puts its process off until there is something to do, and any script will do.
    ready_->evaluateScript("");
}

std::shared_ptr<WebView> WebViewReserve::take() {
    if (!ready_ && webSandboxWorks())
        ready_ = make();
    return std::exchange(ready_, nullptr);
}

} // namespace tessaro
