#include "Views/Inbox/PageScripts.h"

namespace tessaro::scripts {

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

const char* const topBarHider = R"js((function () {
    var old = document.getElementById('__tsr_topbar_hide');
    if (old) old.remove();
    var style = document.createElement('style');
    style.id = '__tsr_topbar_hide';
    style.textContent = `
        [data-testid="mbs_nav_bar"] {
            display: none !important;
            height: 0 !important;
        }
        [data-testid="mbs_side_nav"], [data-testid="BizWeb.SideNav"],
        div[data-pagelet="LeftRail"], div[data-pagelet="left_nav"] {
            pointer-events: none !important;
            visibility: hidden !important;
            width: 0 !important;
            min-width: 0 !important;
            max-width: 0 !important;
            overflow: hidden !important;
        }`;
    document.head.appendChild(style);
})();)js";

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
