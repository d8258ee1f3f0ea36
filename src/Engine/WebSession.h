#pragma once

#include "Platform/GHandle.h"
#include "Platform/ScopedConnection.h"

#include <filesystem>
#include <functional>
#include <memory>

using WebKitNetworkSession = struct _WebKitNetworkSession;

namespace tessaro {

class WebDownload;

/// What all inbox browsers share: cookies, local storage and cache, kept across runs. Drop it after
/// the last WebView that was made with it. UI thread only.
class WebSession {
public:
    /// Makes the folders, readable by their owner only, where they are missing.
    WebSession(const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder);

    /// The one session of the program, in the folders of paths::webDataFolder() and
    /// webCacheFolder(). Lives until the process ends, so that session cookies do as well.
    static WebSession& shared();

    /// Calls `observer` for every download that a page starts until the result is dropped.
    [[nodiscard]] ScopedConnection
    observeDownloads(std::function<void(std::shared_ptr<WebDownload>)> observer) const;

    WebKitNetworkSession* get() const { return session_.get(); }

private:
    GObjectPtr<WebKitNetworkSession> session_;
};

} // namespace tessaro
