#include "Engine/WebViewReserve.h"

#include <utility>

namespace tessaro {

WebViewReserve::WebViewReserve(
    EngineLoader& engine, std::filesystem::path dataFolder, std::filesystem::path cacheFolder,
    Clock& clock, WebNotifications::PermittedOrigin permittedOrigin)
    : engine_(engine),
      dataFolder_(std::move(dataFolder)),
      cacheFolder_(std::move(cacheFolder)),
      clock_(clock),
      permittedOrigin_(std::move(permittedOrigin)) {}

WebViewReserve::Browser WebViewReserve::make(Engine* engine) {
    if (!engine)
        return tl::unexpected(Lack::engine);
    if (!engine->worksHere())
        return tl::unexpected(Lack::sandbox);
    if (!session_) {
        session_ = &engine->makeSession(dataFolder_, cacheFolder_);
        downloads_ = session_->observeDownloads(started_.make_slot());
    }
    return session_->makeView(clock_, permittedOrigin_);
}

void WebViewReserve::prepare() {
    preparing_ = engine_.whenLoaded([this](Engine* engine) {
        if (ready_)
            return;
        if (const auto browser = make(engine)) {
            ready_ = *browser;
            // The engine puts its process off until there is something to do, and any script will
            // do.
            ready_->evaluateScript("");
        }
    });
}

void WebViewReserve::drop() {
    preparing_.disconnect();
    ready_.reset();
}

ScopedConnection WebViewReserve::take(std::function<void(Browser)> taken) {
    return engine_.whenLoaded([this, taken = std::move(taken)](Engine* engine) {
        taken(ready_ ? Browser(std::exchange(ready_, nullptr)) : make(engine));
    });
}

} // namespace tessaro
