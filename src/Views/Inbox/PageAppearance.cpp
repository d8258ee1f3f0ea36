#include "Views/Inbox/PageAppearance.h"

#include "Views/Inbox/PageScripts.h"

#include <iterator>
#include <utility>

namespace tessaro {

namespace {

/// The site builds its navigation late and may replace what an earlier run left.
constexpr Clock::Delay hiderDelays[] = {
    Clock::Delay(500), Clock::Delay(1500), Clock::Delay(3000), Clock::Delay(6000),
    Clock::Delay(10000)};

/// The ground of a page that has none of its own, and the same as the dark style turns it.
const Gdk::RGBA lightGround(1, 1, 1);
const Gdk::RGBA darkGround(0.12F, 0.12F, 0.12F);

} // namespace

PageAppearance::PageAppearance(
    const ScreenContext& context, const std::shared_ptr<WebView>& webView)
    : context_(context),
      webView_(webView),
      siteCheck_(context),
      wasDark_(context.theme.isDarkMode()) {
    setGround(wasDark_);
    themeChanged_ = context_.theme.observe([this] {
        // The accent, of which it also tells, is none of the page's concern.
        const bool isDark = context_.theme.isDarkMode();
        if (std::exchange(wasDark_, isDark) != isDark)
            applyTheme();
    });
}

void PageAppearance::injectTopBarHider() {
    const auto webView = webView_.lock();
    if (!webView)
        return;
    webView->evaluateScript(scripts::topBarHider());
    for (const auto delay : hiderDelays)
        context_.clock.post(delay, [webView] { webView->evaluateScript(scripts::topBarHider()); });
    context_.clock.post(std::end(hiderDelays)[-1], [this, alive = lifetime_.watch(), webView] {
        if (alive)
            siteCheck_.run(*webView);
    });
    applyTheme();
}

void PageAppearance::applyTheme() {
    const bool isDark = context_.theme.isDarkMode();
    if (const auto webView = webView_.lock())
        webView->evaluateScript(isDark ? scripts::darkModeStyle : scripts::darkModeRemover);
    setGround(isDark);
}

void PageAppearance::setGround(bool isDark) {
    if (const auto webView = webView_.lock())
        webView->setGround(isDark ? darkGround : lightGround);
}

} // namespace tessaro
