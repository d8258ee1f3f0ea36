#pragma once

/// Announcements between the inbox browser and the rest of the program, carried by the
/// NotificationCenter. What they carry is said where they carry anything.
namespace tessaro {

inline constexpr const char* webViewZoomIn = "tsr.webview.zoomIn";
inline constexpr const char* webViewZoomOut = "tsr.webview.zoomOut";
inline constexpr const char* webViewZoomReset = "tsr.webview.zoomReset";
inline constexpr const char* webViewReload = "tsr.webview.reload";
inline constexpr const char* webViewGoHome = "tsr.webview.goHome";
inline constexpr const char* webViewFind = "tsr.webview.find";
inline constexpr const char* webViewThemeChanged = "tsr.webview.themeChanged";

/// Posted by the browser when the number of unread things of the Page that is shown has changed;
/// "count" is the number as the site writes it ("3", "20+"), empty for none.
inline constexpr const char* unreadCountChanged = "UnreadCountChanged";

/// Posted when the person chose a notification of a Page, whose Graph id is in "pageId". The window
/// comes to the front, by the "activationToken" where it is not empty, with that Page selected.
inline constexpr const char* inboxRequested = "InboxRequested";

/// Posted by the commands of the menu "Trò Chuyện".
inline constexpr const char* focusSearchField = "FocusSearchField";
inline constexpr const char* refreshInbox = "RefreshInbox";

/// To the list of Pages: the Page at "position", counted from 1, is to be chosen.
inline constexpr const char* choosePage = "tsr.choosePage";

} // namespace tessaro
