#pragma once

#include "Engine/WebDownload.h"
#include "Engine/WebView.h"

#include "Platform/Clock.h"
#include "Platform/ScopedConnection.h"

#include <functional>
#include <memory>

namespace tessaro {

/// What all browsers that are made with it share: cookies, local storage and cache, kept across
/// runs. UI thread only.
class WebSession {
public:
    virtual ~WebSession() = default;

    /// @param clock            outlives the view
    /// @param permittedOrigin  asked whenever a process for pages starts, which may be long before
    ///                         the view's notifications have a delegate; may be empty
    virtual std::shared_ptr<WebView>
    makeView(Clock& clock, WebNotifications::PermittedOrigin permittedOrigin) = 0;

    /// Calls `observer` for every download that a page starts until the result is dropped.
    [[nodiscard]] virtual ScopedConnection
    observeDownloads(std::function<void(std::shared_ptr<WebDownload>)> observer) = 0;
};

} // namespace tessaro
