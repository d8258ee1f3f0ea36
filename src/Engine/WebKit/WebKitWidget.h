#pragma once

#include "Platform/GHandle.h"

using WebKitNetworkSession = struct _WebKitNetworkSession;
using WebKitWebView = struct _WebKitWebView;

namespace tessaro {

/// Makes the toolkit's widget for a WebView, set up as that promises. UI thread only.
GObjectPtr<WebKitWebView> makeWebKitWidget(WebKitNetworkSession* session);

} // namespace tessaro
