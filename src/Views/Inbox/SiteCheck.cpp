#include "Views/Inbox/SiteCheck.h"

#include "Platform/DateTime.h"
#include "Services/BuildConfig.h"
#include "Views/Inbox/PageScripts.h"

namespace tessaro {

namespace {

/// Holds the day and the version that were told of last.
constexpr const char* checkedKey = "inbox_checked";

} // namespace

void checkSite(const ScreenContext& context, WebView& webView) {
    const std::string today =
        formatDateTime(context.clock.now()).substr(0, 10) + " " + build::version;
    if (context.endpoints.pageIdIn(webView.address()).empty() ||
        context.settings.text(checkedKey) == today)
        return;
    webView.askPage(scripts::navigationCount(), [&context, today](const std::string& count) {
        const bool isMissing = count.starts_with("0 ");
        context.logger.log("Inbox navigation: " + count, isMissing ? "WARN" : "INFO");
        context.settings.setText(checkedKey, today);
    });
}

} // namespace tessaro
