#pragma once

#include "Engine/WebView.h"

#include "Views/ScreenContext.h"

#include <memory>
#include <string>

namespace tessaro {

/// Shows the notifications of the inbox site on the desktop. A click on one asks for its Page
/// (InboxSignals::requested) and tells the site. UI thread only.
class SiteNotifications final : public WebNotifications::Delegate {
public:
    /// @param context  outlives this
    SiteNotifications(const ScreenContext& context, const std::shared_ptr<WebView>& webView);
    ~SiteNotifications() override;
    SiteNotifications(const SiteNotifications&) = delete;
    SiteNotifications& operator=(const SiteNotifications&) = delete;

    /// The Page that notifications are of from now on.
    void setPageId(const std::string& pageId) { pageId_ = pageId; }

    void show(const WebNotifications::Content& content) override;
    void didClose(const std::string& id) override;

private:
    const ScreenContext& context_;
    const std::weak_ptr<WebView> webView_;
    std::string pageId_;
};

} // namespace tessaro
