#pragma once

#include "Engine/WebView.h"

#include "Views/ScreenContext.h"

namespace tessaro {

/// Tells the log how much of the site's navigation the inbox that is shown has where the program
/// hides it. When the site changes, the log of the first user says so. One line for each day and
/// version of the program, without an address or anything of the page's content; a warning when
/// nothing was found. Does nothing when the page is no inbox. UI thread only.
/// @param context  outlives the program's web pages
void checkSite(const ScreenContext& context, WebView& webView);

} // namespace tessaro
