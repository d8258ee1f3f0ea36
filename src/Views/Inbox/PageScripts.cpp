#include "Views/Inbox/PageScripts.h"

namespace tessaro::scripts {

namespace {

/// What the site's own navigation is found by.
constexpr const char* topBar = R"([data-testid="mbs_nav_bar"])";
constexpr const char* sideNavigation[] = {
    R"([data-testid="mbs_side_nav"])",
    R"([data-testid="BizWeb.SideNav"])",
    R"(div[data-pagelet="LeftRail"])",
    R"(div[data-pagelet="left_nav"])",
};

std::string sideNavigationBy(const char* separator) {
    std::string text;
    for (const char* selector : sideNavigation)
        text += (text.empty() ? "" : separator) + std::string(selector);
    return text;
}

} // namespace

const char* const darkModeStyle = R"js((function () {
    var old = document.getElementById('__tsr_darkmode');
    if (old) old.remove();
    var style = document.createElement('style');
    style.id = '__tsr_darkmode';
    style.textContent = `
        html {
            filter: invert(0.88) hue-rotate(180deg) !important;
            background: #1a1a1a !important;
        }
        img, video, canvas, svg, [style*="background-image"], .emoji, [data-testid="image"],
        picture, figure img {
            filter: invert(1) hue-rotate(180deg) !important;
        }
        body {
            background: #1a1a1a !important;
        }`;
    document.head.appendChild(style);
})();)js";

const char* const darkModeRemover = R"js((function () {
    var old = document.getElementById('__tsr_darkmode');
    if (old) old.remove();
})();)js";

const std::string& topBarHider() {
    static const std::string script = std::string(R"js((function () {
    var old = document.getElementById('__tsr_topbar_hide');
    if (old) old.remove();
    var style = document.createElement('style');
    style.id = '__tsr_topbar_hide';
    style.textContent = `
        )js") + topBar + R"js( {
            display: none !important;
            height: 0 !important;
        }
        )js" + sideNavigationBy(", ") +
                                      R"js( {
            pointer-events: none !important;
            visibility: hidden !important;
            width: 0 !important;
            min-width: 0 !important;
            max-width: 0 !important;
            overflow: hidden !important;
        }`;
    document.head.appendChild(style);
})();)js";
    return script;
}

const std::string& navigationCount() {
    static const std::string script = std::string(R"js((function () {
    var selectors = [')js") + topBar + "', '" +
                                      sideNavigationBy("', '") + R"js('];
    var counts = selectors.map((selector) => document.querySelectorAll(selector).length);
    var left = 0, above = 0;
    for (var part of document.querySelectorAll('nav, [role="navigation"], [role="banner"]')) {
        var place = part.getBoundingClientRect();
        if (getComputedStyle(part).visibility !== 'visible' || !place.width || !place.height)
            continue;
        if (place.left < 90 && place.right > 60 && place.height > innerHeight / 2) ++left;
        if (place.top < 60 && place.bottom > 0 && place.width > innerWidth / 2) ++above;
    }
    var found = counts.reduce((sum, count) => sum + count);
    return `${found} found (${counts.join(' ')}), seen: ${left} left, ${above} above`;
})();)js";
    return script;
}

const char* const searchFieldFocuser = R"js((function () {
    var fields = document.querySelectorAll('input, textarea, [role="searchbox"]');
    for (var field of fields) {
        var searches = field.type === 'search' || field.getAttribute('role') === 'searchbox'
            || field.closest('[role="search"]')
            || /search|tìm/i.test((field.getAttribute('placeholder') || '').normalize('NFC'));
        var visible = field.getClientRects().length > 0
            && getComputedStyle(field).visibility === 'visible';
        if (searches && visible && !field.disabled) {
            field.focus();
            return;
        }
    }
})();)js";

} // namespace tessaro::scripts
