#pragma once

#include "Engine/EngineLoader.h"

#include <sigc++/signal.h>
#include <tl/expected.hpp>

#include <filesystem>
#include <functional>
#include <memory>

namespace tessaro {

/// Makes the browsers of one session and keeps one ready whose process runs already: starting it
/// takes far longer than loading a page. UI thread only.
class WebViewReserve {
public:
    /// Why there is no browser.
    enum class Lack {
        engine,  ///< Its module is missing or does not fit.
        sandbox, ///< The system forbids it.
    };
    using Browser = tl::expected<std::shared_ptr<WebView>, Lack>;

    /// @param engine, clock    outlive this
    /// @param dataFolder, cacheFolder  of the session, which is made with the first browser
    /// @param permittedOrigin  of the site that may show notifications (WebSession::makeView())
    WebViewReserve(
        EngineLoader& engine, std::filesystem::path dataFolder, std::filesystem::path cacheFolder,
        Clock& clock, WebNotifications::PermittedOrigin permittedOrigin);

    /// Makes a browser ready, unless one is. Takes some ten milliseconds and starts processes.
    void prepare();
    /// Ends the processes of a browser that is ready.
    void drop();
    /// Calls `taken` with the browser that is ready or a new one: at once, or, unless the result is
    /// dropped first, when the engine is there.
    [[nodiscard]] ScopedConnection take(std::function<void(Browser)> taken);

    /// Emitted for every download that a page of these browsers starts.
    sigc::signal<void(std::shared_ptr<WebDownload>)>& signalDownloadStarted() { return started_; }

private:
    Browser make(Engine* engine);

    EngineLoader& engine_;
    const std::filesystem::path dataFolder_, cacheFolder_;
    Clock& clock_;
    const WebNotifications::PermittedOrigin permittedOrigin_;
    WebSession* session_ = nullptr;
    std::shared_ptr<WebView> ready_;
    sigc::signal<void(std::shared_ptr<WebDownload>)> started_;
    ScopedConnection preparing_;
    ScopedConnection downloads_;
};

} // namespace tessaro
