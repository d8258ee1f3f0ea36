#include "Engine/WebKit/WebKitPermissions.h"

#include "Platform/GHandle.h"

#include <gtkmm/eventcontrollerlegacy.h>
#include <webkit/webkit.h>

#include <string_view>

namespace tessaro {

namespace {

/// Empty for what no page gets.
std::vector<WebPermissions::Kind> kindsOf(WebKitPermissionRequest* request) {
    if (WEBKIT_IS_NOTIFICATION_PERMISSION_REQUEST(request))
        return {WebPermissions::Kind::notifications};
    std::vector<WebPermissions::Kind> kinds;
    if (WEBKIT_IS_USER_MEDIA_PERMISSION_REQUEST(request)) {
        auto* const media = WEBKIT_USER_MEDIA_PERMISSION_REQUEST(request);
        if (webkit_user_media_permission_is_for_display_device(media))
            return {};
        if (webkit_user_media_permission_is_for_audio_device(media))
            kinds.push_back(WebPermissions::Kind::microphone);
        if (webkit_user_media_permission_is_for_video_device(media))
            kinds.push_back(WebPermissions::Kind::camera);
    }
    return kinds;
}

/// "Geolocation" for a WebKitGeolocationPermissionRequest.
std::string nameOf(WebKitPermissionRequest* request) {
    constexpr std::string_view head = "WebKit";
    const std::string_view name = G_OBJECT_TYPE_NAME(request);
    return std::string(name.substr(head.size(), name.find("PermissionRequest") - head.size()));
}

WebPermissions::Recording recordingIn(WebKitWebView* view) {
    return {
        .microphone =
            webkit_web_view_get_microphone_capture_state(view) == WEBKIT_MEDIA_CAPTURE_STATE_ACTIVE,
        .camera =
            webkit_web_view_get_camera_capture_state(view) == WEBKIT_MEDIA_CAPTURE_STATE_ACTIVE};
}

} // namespace

WebKitPermissions::WebKitPermissions(WebKitWebView* view, Gtk::Widget& widget, Clock& clock)
    : clock_(clock) {
    signals_.push_back(connectSignal<gboolean(WebKitWebView*, WebKitPermissionRequest*)>(
        view, "permission-request",
        [this](WebKitWebView*, WebKitPermissionRequest* request) -> gboolean {
            onRequest(request);
            return TRUE; // The engine itself would allow some.
        }));
    for (const char* state : {"notify::microphone-capture-state", "notify::camera-capture-state"})
        signals_.push_back(connectSignal<void(WebKitWebView*, GParamSpec*)>(
            view, state, [this](WebKitWebView* changed, GParamSpec*) {
                if (delegate_)
                    delegate_->didChangeRecording(recordingIn(changed));
            }));
    signals_.push_back(connectSignal<void(WebKitWebView*, WebKitLoadEvent)>(
        view, "load-changed", [this](WebKitWebView*, WebKitLoadEvent event) {
            if (event == WEBKIT_LOAD_COMMITTED)
                hasInput_ = false; // It was for the page before.
        }));
    const auto input = Gtk::EventControllerLegacy::create();
    input->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    signals_.push_back(input->signal_event().connect(
        [this](const Glib::RefPtr<const Gdk::Event>& event) {
            noteInput(event);
            return false;
        },
        false));
    widget.add_controller(input);
}

void WebKitPermissions::noteInput(const Glib::RefPtr<const Gdk::Event>& event) {
    const auto type = event->get_event_type();
    const bool isKey = type == Gdk::Event::Type::KEY_PRESS && event->get_keyval() != GDK_KEY_Escape;
    if (!isKey && type != Gdk::Event::Type::BUTTON_PRESS && type != Gdk::Event::Type::TOUCH_END)
        return;
    hasInput_ = true;
    inputEnds_ = clock_.timer(inputCounts, [this] { hasInput_ = false; });
}

void WebKitPermissions::onRequest(WebKitPermissionRequest* request) {
    auto kinds = kindsOf(request);
    if (!delegate_ || kinds.empty()) {
        webkit_permission_request_deny(request);
        if (delegate_)
            delegate_->didRefuse(nameOf(request));
        return;
    }
    delegate_->didRequestPermission(
        {std::move(kinds), hasInput_},
        [kept = GObjectPtr<WebKitPermissionRequest>::share(request)](bool isGranted) {
            if (isGranted)
                webkit_permission_request_allow(kept.get());
            else
                webkit_permission_request_deny(kept.get());
        });
}

} // namespace tessaro
