#include "Engine/WebSession.h"

#include "Engine/WebDownload.h"

#include "Platform/Paths.h"

#include <glib/gstdio.h>
#include <webkit/webkit.h>

namespace tessaro {

WebSession::WebSession(
    const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder) {
    for (const auto& folder : {dataFolder, cacheFolder}) {
        g_mkdir_with_parents(folder.c_str(), 0700);
        g_chmod(folder.c_str(), 0700);
    }
    session_ = GObjectPtr<WebKitNetworkSession>::adopt(
        webkit_network_session_new(dataFolder.c_str(), cacheFolder.c_str()));
    webkit_network_session_set_persistent_credential_storage_enabled(session_.get(), FALSE);
    webkit_cookie_manager_set_persistent_storage(
        webkit_network_session_get_cookie_manager(session_.get()),
        (dataFolder / "cookies.sqlite").c_str(), WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
}

WebSession& WebSession::shared() {
    static WebSession session(paths::webDataFolder(), paths::webCacheFolder());
    return session;
}

ScopedConnection
WebSession::observeDownloads(std::function<void(std::shared_ptr<WebDownload>)> observer) const {
    return connectSignal<void(WebKitNetworkSession*, WebKitDownload*)>(
        session_.get(), "download-started",
        [observer = std::move(observer)](WebKitNetworkSession*, WebKitDownload* download) {
            observer(std::make_shared<WebDownload>(download));
        });
}

} // namespace tessaro
