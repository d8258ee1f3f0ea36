#include "Engine/WebKit/WebKitNavigationPolicy.h"

#include <webkit/webkit.h>

#include <algorithm>

namespace tessaro {

namespace {

/// What pages and their frames are loaded from; the last one is of the engine's own viewer.
constexpr const char* pageSchemes[] = {"http", "https", "about",
                                       "blob", "data",  "webkit-pdfjs-viewer"};

/// Whether the answer brings a file that the engine has no way to show.
bool bringsUnknownFile(WebKitResponsePolicyDecision* decision) {
    if (webkit_response_policy_decision_is_mime_type_supported(decision))
        return false;
    const guint status =
        webkit_uri_response_get_status_code(webkit_response_policy_decision_get_response(decision));
    const bool isEmpty = status == SOUP_STATUS_NO_CONTENT || status == SOUP_STATUS_RESET_CONTENT;
    return !isEmpty && status < SOUP_STATUS_BAD_REQUEST;
}

} // namespace

WebKitNavigationPolicy::WebKitNavigationPolicy(
    WebKitWebView* view, Clock& clock, OpenElsewhere openElsewhere)
    : clock_(clock),
      openElsewhere_(std::move(openElsewhere)),
      decisions_(connectSignal<gboolean(WebKitWebView*, WebKitPolicyDecision*, int)>(
          view, "decide-policy",
          [this](WebKitWebView*, WebKitPolicyDecision* decision, int type) -> gboolean {
              return decide(decision, type);
          })) {}

bool WebKitNavigationPolicy::leadsToPage(WebKitNavigationAction* action) {
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
    const char* scheme = address ? g_uri_peek_scheme(address) : nullptr;
    if (!scheme)
        return false;
    if (std::ranges::find(pageSchemes, std::string_view(scheme)) != std::end(pageSchemes))
        return true;
    const bool isForAnother =
        webkit_navigation_action_is_user_gesture(action) && std::string_view(scheme) != "file";
    if (isForAnother && !std::exchange(hasJustOpened_, true)) {
        pause_ = clock_.timer(std::chrono::seconds(1), [this] { hasJustOpened_ = false; });
        openElsewhere_(address);
    }
    return false;
}

bool WebKitNavigationPolicy::decide(WebKitPolicyDecision* decision, int type) {
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) {
        if (!bringsUnknownFile(WEBKIT_RESPONSE_POLICY_DECISION(decision)))
            return false;
        webkit_policy_decision_download(decision);
        return true;
    }
    WebKitNavigationAction* const action = webkit_navigation_policy_decision_get_navigation_action(
        WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    if (leadsToPage(action))
        return false;
    webkit_policy_decision_ignore(decision);
    return true;
}

} // namespace tessaro
