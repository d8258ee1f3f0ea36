#pragma once

#include "Engine/WebSession.h"
#include "Engine/WebView.h"

#include <functional>
#include <memory>

namespace tessaro {

/// Keeps a browser ready whose process runs already: starting the engine takes far longer than
/// loading a page. UI thread only.
class WebViewReserve {
public:
    /// @param permittedOrigin  of the site that may show notifications (WebNotifications)
    /// @param session          what the browsers share; asked for with the first one only
    explicit WebViewReserve(
        Clock& clock, WebNotifications::PermittedOrigin permittedOrigin = {},
        std::function<const WebSession&()> session = &WebSession::shared);

    /// Makes a browser ready, unless one is. Takes some ten milliseconds and starts processes.
    void prepare();
    /// Ends the processes of a browser that is ready.
    void drop() { ready_.reset(); }
    /// The browser that is ready, or a new one; nothing where the system forbids its sandbox.
    std::shared_ptr<WebView> take();

private:
    std::shared_ptr<WebView> make() const;

    Clock& clock_;
    WebNotifications::PermittedOrigin permittedOrigin_;
    std::function<const WebSession&()> session_;
    std::shared_ptr<WebView> ready_;
};

} // namespace tessaro
