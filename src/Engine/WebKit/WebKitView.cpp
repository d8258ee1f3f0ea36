#include "Engine/WebKit/WebKitView.h"

#include "Engine/WebKit/WebKitIdentity.h"
#include "Engine/WebKit/WebKitOpenDialog.h"
#include "Engine/WebKit/WebKitRecording.h"
#include "Engine/WebKit/WebKitWidget.h"

#include <gtkmm/window.h>
#include <webkit/webkit.h>

namespace tessaro {

namespace {

/// What earlier scripts have changed is painted in the next frame. A page that is not on screen has
/// none.
constexpr const char* untilPainted = R"js(
    return new Promise(done => {
        if (document.hidden)
            done();
        document.addEventListener('visibilitychange', done, {once: true});
        requestAnimationFrame(() => requestAnimationFrame(done));
    });)js";

Task<void> waitUntilPainted(GObjectPtr<WebKitWebView> view, std::function<void()> painted) {
    co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            // In a world of its own, where the page has replaced none of these functions.
            webkit_web_view_call_async_javascript_function(
                view.get(), untilPainted, -1, nullptr, "tessaro", nullptr, nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GObjectPtr<JSCValue>::adopt(
                webkit_web_view_call_async_javascript_function_finish(view.get(), result, nullptr));
        });
    painted();
}

Task<void> askForText(
    GObjectPtr<WebKitWebView> view, std::string script,
    std::function<void(const std::string&)> answered) {
    const auto value = co_await AsyncCall(
        [&](GAsyncReadyCallback ready, gpointer data) {
            webkit_web_view_evaluate_javascript(
                view.get(), script.data(), static_cast<gssize>(script.size()), nullptr, nullptr,
                nullptr, ready, data);
        },
        [&](GObject*, GAsyncResult* result) {
            return GObjectPtr<JSCValue>::adopt(
                webkit_web_view_evaluate_javascript_finish(view.get(), result, nullptr));
        });
    if (value)
        answered(takeString(jsc_value_to_string(value.get())));
}

/// Whether the engine puts a page of its own, which tells the error, in place of the one that
/// failed to load.
bool showsErrorPage(const GError& error) {
    return !g_error_matches(&error, WEBKIT_NETWORK_ERROR, WEBKIT_NETWORK_ERROR_CANCELLED) &&
           !g_error_matches(
               &error, WEBKIT_POLICY_ERROR,
               WEBKIT_POLICY_ERROR_FRAME_LOAD_INTERRUPTED_BY_POLICY_CHANGE) &&
           !g_error_matches(&error, WEBKIT_MEDIA_ERROR, WEBKIT_MEDIA_ERROR_WILL_HANDLE_LOAD);
}

} // namespace

WebKitView::WebKitView(
    WebKitNetworkSession* session, Clock& clock, WebNotifications::PermittedOrigin permittedOrigin)
    : view_(makeWebKitWidget(session)),
      widget_(Glib::wrap(GTK_WIDGET(view_.get()))),
      notifications_(view_.get(), std::move(permittedOrigin)),
      permissions_(view_.get(), *widget_, clock),
      finder_(view_.get()),
      handOver_(view_.get()),
      clock_(clock),
      leaveQuestion_(view_.get(), clock),
      policy_(
          view_.get(), clock,
          [this](const std::string& address) {
              if (delegate_)
                  delegate_->openElsewhere(address);
          }),
      newWindows_(view_.get(), clock, policy_, [this](GObjectPtr<WebKitURIRequest> request) {
          onWindowRequested(std::move(request));
      }) {
    agreeWithIdentity(view_.get());
    nameSampleRate(view_.get());
    const auto connect =
        [this]<typename Signature>(const char* signal, std::function<Signature> handler) {
            signals_.push_back(connectSignal<Signature>(view_.get(), signal, std::move(handler)));
        };
    // For its swipes the engine takes a picture of the page at each navigation, and crashes over a
    // view that is not in a window then.
    connect("map", std::function([this](WebKitWebView*) { setSwipeGestures(true); }));
    connect("unmap", std::function([this](WebKitWebView*) { setSwipeGestures(false); }));
    connect("load-changed", std::function([this](WebKitWebView*, WebKitLoadEvent event) {
                onLoadChanged(event);
            }));
    connect(
        "load-failed",
        std::function(
            [this](WebKitWebView*, WebKitLoadEvent, char* address, GError* error) -> gboolean {
                onLoadFailed(showsErrorPage(*error) ? address : "");
                return FALSE;
            }));
    connect(
        "notify::title", std::function([this](WebKitWebView*, GParamSpec*) { onTitleChanged(); }));
    connect("notify::is-loading", std::function([this](WebKitWebView*, GParamSpec*) {
                if (!isLoading())
                    onLoadingEnded();
            }));
    connect("notify::uri", std::function([this](WebKitWebView*, GParamSpec*) {
                // Whether it is a load that changes it is known in the next turn.
                addressChanged_ = clock_.timer(Clock::Delay::zero(), [this] {
                    if (!isAwaitingPage_ && !isLoading())
                        onPageShown();
                });
            }));
    connect("enter-fullscreen", std::function([this](WebKitWebView*) -> gboolean {
                onFullScreenChanged(true);
                return FALSE;
            }));
    connect("leave-fullscreen", std::function([this](WebKitWebView*) -> gboolean {
                onFullScreenChanged(false);
                return FALSE;
            }));
    connect("notify::estimated-load-progress", std::function([this](WebKitWebView*, GParamSpec*) {
                onProgress();
            }));
    connect(
        "script-dialog",
        std::function([this](WebKitWebView*, WebKitScriptDialog* dialog) -> gboolean {
            return onScriptDialog(dialog);
        }));
    connect(
        "web-process-terminated",
        std::function([this](WebKitWebView*, WebKitWebProcessTerminationReason) {
            onWebProcessTerminated();
        }));
}

WebKitView::~WebKitView() {
    signals_.clear();
    // A script that still runs would keep the view, and the process, a while longer.
    webkit_web_view_terminate_web_process(view_.get());
}

void WebKitView::setCustomUserAgent(const std::string& userAgent) {
    webkit_settings_set_user_agent(webkit_web_view_get_settings(view_.get()), userAgent.c_str());
}

void WebKitView::requestLeave(std::function<void(bool)> answered) {
    if (isBeingLeft_ || address().empty())
        answered(true);
    else
        leaveQuestion_.ask(std::move(answered));
}

void WebKitView::load(const std::string& address) {
    load(GObjectPtr<WebKitURIRequest>::adopt(webkit_uri_request_new(address.c_str())));
}

void WebKitView::load(const GObjectPtr<WebKitURIRequest>& request) {
    errorPageAddress_.clear();
    isAwaitingPage_ = isBeingLeft_ = true;
    // Several megabytes for each Page would stay in memory for as long as it can be gone back to.
    // The new page brings the gestures back.
    setSwipeGestures(false);
    webkit_web_view_load_request(view_.get(), request.get());
}

void WebKitView::reload() {
    errorPageAddress_.clear();
    isBeingLeft_ = true;
    webkit_web_view_reload(view_.get());
}

void WebKitView::goBack() {
    webkit_web_view_go_back(view_.get());
}

void WebKitView::goForward() {
    webkit_web_view_go_forward(view_.get());
}

void WebKitView::close() {
    webkit_web_view_terminate_web_process(view_.get());
}

void WebKitView::setGround(const Gdk::RGBA& color) {
    webkit_web_view_set_background_color(view_.get(), color.gobj());
}

void WebKitView::setPageZoom(double factor) {
    webkit_web_view_set_zoom_level(view_.get(), factor);
}

double WebKitView::pageZoom() const {
    return webkit_web_view_get_zoom_level(view_.get());
}

void WebKitView::evaluateScript(const std::string& script) {
    webkit_web_view_evaluate_javascript(
        view_.get(), script.data(), static_cast<gssize>(script.size()), nullptr, nullptr, nullptr,
        nullptr, nullptr);
}

void WebKitView::askPage(
    const std::string& script, std::function<void(const std::string&)> answered) {
    askForText(view_, script, std::move(answered)).detach();
}

void WebKitView::whenPainted(std::function<void()> painted) {
    waitUntilPainted(view_, std::move(painted)).detach();
}

std::string WebKitView::address() const {
    const char* address = webkit_web_view_get_uri(view_.get());
    return address ? address : "";
}

bool WebKitView::isLoading() const {
    return webkit_web_view_is_loading(view_.get());
}

std::string WebKitView::title() const {
    const char* title = webkit_web_view_get_title(view_.get());
    return title ? title : "";
}

void WebKitView::setSwipeGestures(bool areEnabled) {
    webkit_settings_set_enable_back_forward_navigation_gestures(
        webkit_web_view_get_settings(view_.get()), areEnabled);
}

void WebKitView::onLoadChanged(int event) {
    if (event == WEBKIT_LOAD_STARTED) {
        const std::string errorPage = std::exchange(errorPageAddress_, {});
        if (!errorPage.empty() && errorPage == address())
            return;
        hasFailed_ = false;
        isAwaitingPage_ = true;
        expectProgress();
        if (delegate_)
            delegate_->didStartProvisionalNavigation(*this);
    } else if (event == WEBKIT_LOAD_COMMITTED) {
        isAwaitingPage_ = isBeingLeft_ = false;
        forgetFormerPage();
        onPageShown();
        setSwipeGestures(widget_->get_mapped());
    } else if (event == WEBKIT_LOAD_FINISHED) {
        isAwaitingPage_ = false;
        timeout_.disconnect();
        // The engine says of a failed load and of its error page, too, that they have finished.
        if (delegate_ && !hasFailed_)
            delegate_->didFinishNavigation(*this);
    }
}

void WebKitView::onLoadFailed(const std::string& errorPageAddress) {
    hasFailed_ = true;
    isAwaitingPage_ = false;
    errorPageAddress_ = errorPageAddress;
    timeout_.disconnect();
    if (delegate_)
        delegate_->didFailNavigation(*this);
}

void WebKitView::onLoadingEnded() {
    // Also where nothing came of it: at a place within the page, a download, an empty answer.
    isAwaitingPage_ = isBeingLeft_ = false;
    setSwipeGestures(widget_->get_mapped());
    onPageShown();
}

void WebKitView::onPageShown() {
    if (delegate_)
        delegate_->didShowPage(*this);
    onTitleChanged();
}

void WebKitView::onWindowRequested(GObjectPtr<WebKitURIRequest> request) {
    if (delegate_)
        delegate_->createWebView(*this, [this, alive = lifetime_.watch(), request] {
            if (alive)
                load(request);
        });
}

void WebKitView::forgetFormerPage() {
    handOver_.forget();
    newWindows_.closeAll();
}

void WebKitView::onFullScreenChanged(bool isFullScreen) {
    if (std::exchange(isFullScreen_, isFullScreen) != isFullScreen && delegate_)
        delegate_->didChangeFullScreen(isFullScreen);
}

bool WebKitView::onScriptDialog(WebKitScriptDialog* dialog) {
    const auto type = webkit_script_dialog_get_dialog_type(dialog);
    if (!delegate_ || type == WEBKIT_SCRIPT_DIALOG_PROMPT)
        return false;
    const std::string message = webkit_script_dialog_get_message(dialog);
    const auto open = std::make_shared<WebKitOpenDialog>(dialog);
    const auto confirm = [open](bool confirmed) { open->confirm(confirmed); };
    if (type == WEBKIT_SCRIPT_DIALOG_ALERT) {
        delegate_->runScriptAlert(message, [open] { open->close(); });
    } else if (type == WEBKIT_SCRIPT_DIALOG_CONFIRM) {
        delegate_->runScriptConfirm(message, confirm);
    } else if (isBeingLeft_) {
        confirm(true);
    } else {
        leaveQuestion_.leaveToThePerson();
        delegate_->runLeaveConfirm([this, confirm, alive = lifetime_.watch()](bool mayLeave) {
            confirm(mayLeave);
            if (alive && !mayLeave)
                leaveQuestion_.answer(false);
        });
    }
    open->outliveSignal();
    return true;
}

void WebKitView::onTitleChanged() {
    if (delegate_ && !isAwaitingPage_)
        delegate_->didChangeTitle(*this);
}

void WebKitView::onProgress() {
    if (isLoading())
        expectProgress();
}

void WebKitView::expectProgress() {
    timeout_ = clock_.timer(loadTimeout, [this] { webkit_web_view_stop_loading(view_.get()); });
}

void WebKitView::onWebProcessTerminated() {
    timeout_.disconnect();
    isAwaitingPage_ = isBeingLeft_ = false;
    if (auto* window = dynamic_cast<Gtk::Window*>(widget_->get_root()); window && isFullScreen_)
        window->unfullscreen(); // WebKitGTK leaves it as it is.
    onFullScreenChanged(false);
    forgetFormerPage();
    notifications_.closeAll();
    if (delegate_)
        delegate_->webProcessDidTerminate(*this);
    leaveQuestion_.answer(true);
}

} // namespace tessaro
