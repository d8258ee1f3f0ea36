#pragma once

#include "Platform/Property.h"
#include "Views/Inbox/ClippedWebViewContainer.h"
#include "Views/ScreenContext.h"

#include <memory>
#include <string>

namespace tessaro {

class Coordinator;

/// Describes the inbox browser of one Page; a plain value, made anew for every change. The browser
/// itself is made once and brought up to date with each new description.
struct PageInboxWebView {
    /// A desktop Chrome, as which the site serves its full inbox.
    static constexpr const char* userAgent =
        "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/537.36 (KHTML, like Gecko) "
        "Chrome/125.0.0.0 Safari/537.36";

    const ScreenContext& context;
    std::string pageId;
    /// Whether a page is loading. Written in the turn after the event, never inside it.
    std::shared_ptr<Property<bool>> isLoading;

    /// What the browser's events and the commands go to. Must outlive the container's use of it.
    std::unique_ptr<Coordinator> makeCoordinator() const;
    /// Wraps the browser and loads the inbox into it. Once per coordinator.
    std::unique_ptr<ClippedWebViewContainer>
    makeView(Coordinator& coordinator, std::shared_ptr<WebView> webView) const;
    /// Loads the inbox of another Page in the same browser; does nothing for the same Page. The
    /// zoom stays.
    void updateView(ClippedWebViewContainer& container, Coordinator& coordinator) const;

    /// The address of the Page's inbox. The id is taken as it stands.
    std::string inboxURL() const;
};

} // namespace tessaro
