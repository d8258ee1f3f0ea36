#include "Engine/WebKit/WebKitSession.h"

#include "Engine/WebKit/WebKitFileDownload.h"
#include "Engine/WebKit/WebKitView.h"

#include <glib/gstdio.h>
#include <webkit/webkit.h>

namespace tessaro {

WebKitSession::WebKitSession(
    const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder) {
    for (const auto& folder : {dataFolder, cacheFolder}) {
        g_mkdir_with_parents(folder.c_str(), 0700);
        g_chmod(folder.c_str(), 0700);
    }
    session_ = GObjectPtr<WebKitNetworkSession>::adopt(
        webkit_network_session_new(dataFolder.c_str(), cacheFolder.c_str()));
    webkit_network_session_set_persistent_credential_storage_enabled(session_.get(), FALSE);
    webkit_network_session_set_itp_enabled(session_.get(), FALSE);
    WebKitCookieManager* const cookies = webkit_network_session_get_cookie_manager(session_.get());
    webkit_cookie_manager_set_accept_policy(cookies, WEBKIT_COOKIE_POLICY_ACCEPT_NO_THIRD_PARTY);
    webkit_cookie_manager_set_persistent_storage(
        cookies, (dataFolder / "cookies.sqlite").c_str(), WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);
}

std::shared_ptr<WebView>
WebKitSession::makeView(Clock& clock, WebNotifications::PermittedOrigin permittedOrigin) {
    return std::make_shared<WebKitView>(session_.get(), clock, std::move(permittedOrigin));
}

ScopedConnection
WebKitSession::observeDownloads(std::function<void(std::shared_ptr<WebDownload>)> observer) {
    return connectSignal<void(WebKitNetworkSession*, WebKitDownload*)>(
        session_.get(), "download-started",
        [observer = std::move(observer)](WebKitNetworkSession*, WebKitDownload* download) {
            observer(std::make_shared<WebKitFileDownload>(download));
        });
}

} // namespace tessaro
