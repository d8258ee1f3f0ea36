#include "Engine/WebKit/WebKitRecording.h"

#include "Platform/GHandle.h"

#include <webkit/webkit.h>

namespace tessaro {

namespace {

/// Names the rate for the page, in the arguments of MediaDevices.getUserMedia() (Media Capture and
/// Streams, 10.2).
constexpr const char* script = R"js((() => {
    if (!window.MediaDevices)
        return;
    const ask = MediaDevices.prototype.getUserMedia;
    MediaDevices.prototype.getUserMedia = function getUserMedia(wanted) {
        const audio = wanted?.audio;
        if (!audio)
            return ask.apply(this, arguments);
        const own = audio === true ? {} : audio;
        return ask.call(this, {...wanted, audio: {sampleRate: {ideal: 48000}, ...own}});
    };
})();)js";

} // namespace

void nameSampleRate(WebKitWebView* view) {
    const std::unique_ptr<WebKitUserScript, Releaser<webkit_user_script_unref>> added(
        webkit_user_script_new(
            script, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
            WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START, nullptr, nullptr));
    webkit_user_content_manager_add_script(
        webkit_web_view_get_user_content_manager(view), added.get());
}

} // namespace tessaro
