#include "Platform/Gtk/WebViewReserve.h"

#include "Platform/Gtk/WebSandbox.h"

namespace tessaro {

WebViewReserve::WebViewReserve(Clock& clock, std::function<const WebSession&()> session)
    : clock_(clock), session_(std::move(session)) {}

void WebViewReserve::prepare() {
    if (ready_ || !webSandboxWorks())
        return;
    ready_ = std::make_shared<WebView>(session_(), clock_);
    // The engine puts its process off until there is something to do, and any script will do.
    ready_->evaluateScript("");
}

std::shared_ptr<WebView> WebViewReserve::take() {
    if (!ready_ && webSandboxWorks())
        ready_ = std::make_shared<WebView>(session_(), clock_);
    return std::exchange(ready_, nullptr);
}

} // namespace tessaro
