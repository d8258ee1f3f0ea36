#pragma once

#include "Engine/WebView.h"

#include "Platform/Lifetime.h"
#include "Views/ScreenContext.h"

namespace tessaro {

/// Tells the log how much of the site's navigation the inbox that is shown has where the program
/// hides it. When the site changes, the log of the first user says so. One line for each day and
/// version of the program, without an address or anything of the page's content; a warning when
/// nothing was found. UI thread only.
class SiteCheck {
public:
    /// @param context  outlives this
    explicit SiteCheck(const ScreenContext& context) : context_(context) {}

    /// Looks at the page that is shown. Does nothing when it is no inbox.
    void run(WebView& webView);

private:
    const ScreenContext& context_;
    Lifetime lifetime_;
};

} // namespace tessaro
