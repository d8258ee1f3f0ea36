#include "Views/Inbox/SiteCheck.h"

#include "Platform/DateTime.h"
#include "Services/BuildConfig.h"
#include "Views/Inbox/PageScripts.h"

namespace tessaro {

namespace {

/// Holds the day and the version that were told of last.
constexpr const char* checkedKey = "inbox_checked";

} // namespace

void SiteCheck::run(WebView& webView) {
    const std::string today =
        formatDateTime(context_.clock.now()).substr(0, 10) + " " + build::version;
    if (context_.endpoints.pageIdIn(webView.address()).empty() ||
        context_.settings.text(checkedKey) == today)
        return;
    webView.askPage(
        scripts::navigationCount(),
        [this, alive = lifetime_.watch(), today](const std::string& count) {
            if (!alive)
                return;
            const bool isMissing = count.starts_with("0 ");
            context_.logger.log("Inbox navigation: " + count, isMissing ? "WARN" : "INFO");
            context_.settings.setText(checkedKey, today);
        });
}

} // namespace tessaro
