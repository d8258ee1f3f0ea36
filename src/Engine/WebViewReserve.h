#pragma once

#include "Engine/Engine.h"

#include <filesystem>
#include <memory>

namespace tessaro {

/// Makes the browsers of one session and keeps one ready whose process runs already: starting it
/// takes far longer than loading a page. UI thread only.
class WebViewReserve {
public:
    /// @param engine, clock    outlive this
    /// @param dataFolder, cacheFolder  of the session, which is made with the first browser
    /// @param permittedOrigin  of the site that may show notifications (WebSession::makeView())
    WebViewReserve(
        Engine& engine, std::filesystem::path dataFolder, std::filesystem::path cacheFolder,
        Clock& clock, WebNotifications::PermittedOrigin permittedOrigin);

    /// Makes a browser ready, unless one is. Takes some ten milliseconds and starts processes.
    void prepare();
    /// Ends the processes of a browser that is ready.
    void drop() { ready_.reset(); }
    /// The browser that is ready, or a new one; nothing where the system forbids its sandbox.
    std::shared_ptr<WebView> take();

    WebSession& session();

private:
    Engine& engine_;
    const std::filesystem::path dataFolder_, cacheFolder_;
    Clock& clock_;
    const WebNotifications::PermittedOrigin permittedOrigin_;
    WebSession* session_ = nullptr;
    std::shared_ptr<WebView> ready_;
};

} // namespace tessaro
