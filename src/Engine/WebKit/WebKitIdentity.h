#pragma once

using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// Makes what a script can see of the browser agree with the identity that the view has at that
/// time, in every page and frame to come. Nothing is changed for an identity other than that of a
/// Chrome; workers see the engine as it is.
void agreeWithIdentity(WebKitWebView* view);

} // namespace tessaro
