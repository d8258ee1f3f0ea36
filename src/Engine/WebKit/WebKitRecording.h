#pragma once

using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// Makes a sound recorded by a page hold the sound: what WebKitGTK records of a microphone for
/// which the page names no sample rate is empty.
void nameSampleRate(WebKitWebView* view);

} // namespace tessaro
