#pragma once

/// Announcements between the inbox browser and the rest of the program, posted through the
/// NotificationCenter. Those without a comment carry no values.
namespace tessaro {

inline constexpr const char* webViewZoomIn = "tsr.webview.zoomIn";
inline constexpr const char* webViewZoomOut = "tsr.webview.zoomOut";
inline constexpr const char* webViewZoomReset = "tsr.webview.zoomReset";
inline constexpr const char* webViewReload = "tsr.webview.reload";
inline constexpr const char* webViewGoHome = "tsr.webview.goHome";
inline constexpr const char* webViewFind = "tsr.webview.find";
inline constexpr const char* webViewThemeChanged = "tsr.webview.themeChanged";

/// Posted by the inbox browser when the unread count of the selected Page has changed. "count" is
/// the count as the site writes it ("3", "20+"), empty for none.
inline constexpr const char* unreadCountChanged = "UnreadCountChanged";

/// Posted when the person clicked a desktop notification. The window comes to the front and selects
/// the Page whose Graph id is "pageId". "activationToken" permits the window to take the focus; it
/// is empty where the desktop gives none.
inline constexpr const char* inboxRequested = "InboxRequested";

/// Posted by the commands of the menu "Trò Chuyện".
inline constexpr const char* focusSearchField = "FocusSearchField";
inline constexpr const char* refreshInbox = "RefreshInbox";

/// Asks the list of Pages to select the Page at "position", counted from 1.
inline constexpr const char* choosePage = "tsr.choosePage";

} // namespace tessaro
