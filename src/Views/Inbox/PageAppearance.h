#pragma once

#include "Engine/WebView.h"

#include "Platform/Lifetime.h"
#include "Platform/ScopedConnection.h"
#include "Views/Inbox/SiteCheck.h"
#include "Views/ScreenContext.h"

#include <memory>

namespace tessaro {

/// Makes the web page in one browser look like a part of the program: it follows light and dark,
/// and the inbox shows none of the site's own navigation. UI thread only.
class PageAppearance {
public:
    /// @param context  outlives this
    /// @param webView  not kept alive; nothing is done once it is gone
    PageAppearance(const ScreenContext& context, const std::shared_ptr<WebView>& webView);

    /// Hides the site's navigation for good and applies the theme.
    void injectTopBarHider();
    /// Makes the page that is shown dark or light.
    void applyTheme();
    /// @param isDark  what is seen where no page has painted yet
    void setGround(bool isDark);

private:
    const ScreenContext& context_;
    const std::weak_ptr<WebView> webView_;
    SiteCheck siteCheck_;
    bool wasDark_; ///< When the theme last told of a change.
    ScopedConnection themeChanged_;
    Lifetime lifetime_;
};

} // namespace tessaro
