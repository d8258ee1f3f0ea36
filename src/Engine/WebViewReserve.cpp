#include "Engine/WebViewReserve.h"

#include <utility>

namespace tessaro {

WebViewReserve::WebViewReserve(
    Engine& engine, std::filesystem::path dataFolder, std::filesystem::path cacheFolder,
    Clock& clock, WebNotifications::PermittedOrigin permittedOrigin)
    : engine_(engine),
      dataFolder_(std::move(dataFolder)),
      cacheFolder_(std::move(cacheFolder)),
      clock_(clock),
      permittedOrigin_(std::move(permittedOrigin)) {}

WebSession& WebViewReserve::session() {
    if (!session_)
        session_ = &engine_.makeSession(dataFolder_, cacheFolder_);
    return *session_;
}

void WebViewReserve::prepare() {
    if (ready_ || !engine_.worksHere())
        return;
    ready_ = session().makeView(clock_, permittedOrigin_);
    // The engine puts its process off until there is something to do, and any script will do.
    ready_->evaluateScript("");
}

std::shared_ptr<WebView> WebViewReserve::take() {
    if (!ready_ && engine_.worksHere())
        ready_ = session().makeView(clock_, permittedOrigin_);
    return std::exchange(ready_, nullptr);
}

} // namespace tessaro
