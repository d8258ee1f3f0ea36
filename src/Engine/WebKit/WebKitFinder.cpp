#include "Engine/WebKit/WebKitFinder.h"

#include <webkit/webkit.h>

namespace tessaro {

namespace {

constexpr guint32 options = WEBKIT_FIND_OPTIONS_CASE_INSENSITIVE | WEBKIT_FIND_OPTIONS_WRAP_AROUND;

} // namespace

WebKitFinder::WebKitFinder(WebKitWebView* view)
    : controller_(webkit_web_view_get_find_controller(view)) {
    signals_.push_back(connectSignal<void(WebKitFindController*, guint)>(
        controller_, "counted-matches",
        [this](WebKitFindController*, guint count) { report(count); }));
    signals_.push_back(connectSignal<void(WebKitFindController*)>(
        controller_, "failed-to-find-text", [this](WebKitFindController*) { report(0); }));
}

void WebKitFinder::find(const std::string& text) {
    if (text.empty()) {
        end();
        return;
    }
    isSearching_ = true;
    // In this order: to count takes the marks away that a search sets.
    webkit_find_controller_count_matches(controller_, text.c_str(), options, G_MAXUINT);
    webkit_find_controller_search(controller_, text.c_str(), options, G_MAXUINT);
}

void WebKitFinder::findNext() {
    if (isSearching_)
        webkit_find_controller_search_next(controller_);
}

void WebKitFinder::findPrevious() {
    if (isSearching_)
        webkit_find_controller_search_previous(controller_);
}

void WebKitFinder::end() {
    isSearching_ = false;
    webkit_find_controller_search_finish(controller_);
}

void WebKitFinder::report(unsigned count) {
    if (isSearching_) // Otherwise a late answer to what nobody looks for any more.
        counted_.emit(count);
}

} // namespace tessaro
