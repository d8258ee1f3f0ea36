#pragma once

#include "Platform/Clock.h"
#include "Platform/ScopedConnection.h"

#include <functional>
#include <string>

using WebKitNavigationAction = struct _WebKitNavigationAction;
using WebKitPolicyDecision = struct _WebKitPolicyDecision;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// Decides where the pages of one view may lead: to other pages, in every frame, and by a click to
/// other programs; never to a local file. What the engine cannot show is downloaded.
class WebKitNavigationPolicy {
public:
    using OpenElsewhere = std::function<void(const std::string& address)>;

    /// @param view, clock     outlive this
    /// @param openElsewhere   called for what another program is to open, once a second at most: a
    ///                        page may ask for many within one click
    WebKitNavigationPolicy(WebKitWebView* view, Clock& clock, OpenElsewhere openElsewhere);

    /// Whether what was asked for is a page. Where it is not, and the person clicked for it,
    /// another program may be asked to open it.
    bool leadsToPage(WebKitNavigationAction* action);

private:
    bool decide(WebKitPolicyDecision* decision, int type);

    Clock& clock_;
    const OpenElsewhere openElsewhere_;
    bool hasJustOpened_ = false;
    ScopedConnection pause_;
    ScopedConnection decisions_;
};

} // namespace tessaro
