#pragma once

#include "Engine/WebSession.h"

#include "Platform/GHandle.h"

#include <filesystem>

using WebKitNetworkSession = struct _WebKitNetworkSession;

namespace tessaro {

/// See Engine::makeSession().
class WebKitSession final : public WebSession {
public:
    WebKitSession(
        const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder);

    std::shared_ptr<WebView>
    makeView(Clock& clock, WebNotifications::PermittedOrigin permittedOrigin) override;
    [[nodiscard]] ScopedConnection
    observeDownloads(std::function<void(std::shared_ptr<WebDownload>)> observer) override;

private:
    GObjectPtr<WebKitNetworkSession> session_;
};

} // namespace tessaro
