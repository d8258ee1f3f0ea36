#include "Engine/WebKit/WebKitLeaveQuestion.h"

#include "Engine/WebView.h"

#include <webkit/webkit.h>

namespace tessaro {

WebKitLeaveQuestion::WebKitLeaveQuestion(WebKitWebView* view, Clock& clock)
    : view_(view),
      clock_(clock),
      closed_(connectSignal<void(WebKitWebView*)>(
          view, "close", [this](WebKitWebView*) { answer(true); })) {}

void WebKitLeaveQuestion::ask(std::function<void(bool)> answered) {
    waiting_.push_back(std::move(answered));
    if (waiting_.size() > 1)
        return;
    timeout_ = clock_.timer(WebView::leaveTimeout, [this] {
        // Whatever is loaded next would wait for it as well.
        webkit_web_view_terminate_web_process(view_);
        answer(true);
    });
    tryToClose().detach();
}

void WebKitLeaveQuestion::answer(bool mayLeave) {
    timeout_.disconnect();
    for (const auto& answered : std::exchange(waiting_, {}))
        answered(mayLeave);
}

Task<void> WebKitLeaveQuestion::tryToClose() {
    const auto alive = lifetime_.watch();
    // A page that is busy for some fifty milliseconds would be taken to agree. One that has just
    // run a script is not.
    co_await AsyncCall(
        [this](GAsyncReadyCallback ready, gpointer data) {
            webkit_web_view_evaluate_javascript(
                view_, "", 0, nullptr, nullptr, nullptr, ready, data);
        },
        [](GObject* view, GAsyncResult* result) {
            return GObjectPtr<JSCValue>::adopt(
                webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(view), result, nullptr));
        });
    if (alive && !waiting_.empty())
        webkit_web_view_try_close(view_);
}

} // namespace tessaro
