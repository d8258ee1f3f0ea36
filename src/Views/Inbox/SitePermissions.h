#pragma once

#include "Engine/WebView.h"

#include "Platform/Lifetime.h"
#include "Services/SiteConsent.h"
#include "Views/ScreenContext.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tessaro {

/// Lets the inbox site, and no other, show notifications, record sound and record pictures, each
/// after the person was asked once; the last two only where the person has just done something in
/// the page. Tells in InboxSignals::recording what is recorded, and in the log what else pages
/// asked for. UI thread only.
class SitePermissions final : public WebPermissions::Delegate {
public:
    /// @param context  outlives this
    SitePermissions(const ScreenContext& context, const std::shared_ptr<WebView>& webView);
    ~SitePermissions() override;
    SitePermissions(const SitePermissions&) = delete;
    SitePermissions& operator=(const SitePermissions&) = delete;

    void didRequestPermission(
        WebPermissions::Request request, std::function<void(bool)> answer) override;
    void didRefuse(const std::string& kind) override;
    void didChangeRecording(WebPermissions::Recording recording) override;

    /// The origin of the inbox site while it may show notifications, else empty.
    static std::string notifyingOrigin(const ScreenContext& context);

private:
    using Kind = WebPermissions::Kind;
    using Answers = std::vector<std::function<void(bool)>>;

    /// Whether the page that asks is the inbox site's.
    bool isAskedByInbox() const;
    /// Asks for one kind after the other until one is refused.
    void decide(std::vector<Kind> kinds, std::function<void(bool)> answer);
    void decide(Kind kind, std::function<void(bool)> answer);

    const ScreenContext& context_;
    const std::weak_ptr<WebView> webView_;
    /// What waits for the person's answer, for each question on screen.
    std::map<Kind, std::shared_ptr<Answers>> waiting_;
    std::set<std::string> logged_; ///< The kinds.
    Lifetime lifetime_;
};

} // namespace tessaro
