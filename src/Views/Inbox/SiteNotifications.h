#pragma once

#include "Engine/WebView.h"

#include "Services/NotificationConsent.h"
#include "Views/ScreenContext.h"

#include <memory>
#include <string>
#include <vector>

namespace tessaro {

/// Lets the inbox site, and no other, show notifications on the desktop, after the person was asked
/// once. A click on one asks for its Page (InboxSignals::requested) and tells the site. UI thread
/// only.
class SiteNotifications final : public WebNotifications::Delegate {
public:
    /// @param context  outlives this
    SiteNotifications(const ScreenContext& context, const std::shared_ptr<WebView>& webView);
    ~SiteNotifications() override;
    SiteNotifications(const SiteNotifications&) = delete;
    SiteNotifications& operator=(const SiteNotifications&) = delete;

    /// The origin of the inbox site while it has the person's permission, else empty.
    static std::string permittedOrigin(const ScreenContext& context);

    /// The Page that notifications are of from now on.
    void setPageId(const std::string& pageId) { pageId_ = pageId; }

    void didRequestPermission(std::function<void(bool)> answer) override;
    void show(const WebNotifications::Content& content) override;
    void didClose(const std::string& id) override;

private:
    using Answers = std::vector<std::function<void(bool)>>;

    void ask();

    const ScreenContext& context_;
    const std::weak_ptr<WebView> webView_;
    NotificationConsent consent_;
    std::string pageId_;
    /// What waits for the person's answer.
    std::shared_ptr<Answers> waiting_ = std::make_shared<Answers>();
};

} // namespace tessaro
