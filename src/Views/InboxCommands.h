#pragma once

/// Announcements that the rest of the program sends to every inbox browser through the
/// NotificationCenter. They carry nothing.
namespace tessaro {

inline constexpr const char* webViewZoomIn = "tsr.webview.zoomIn";
inline constexpr const char* webViewZoomOut = "tsr.webview.zoomOut";
inline constexpr const char* webViewReload = "tsr.webview.reload";
inline constexpr const char* webViewGoHome = "tsr.webview.goHome";
inline constexpr const char* webViewThemeChanged = "tsr.webview.themeChanged";

/// Posted by the commands of the menu "Trò Chuyện".
inline constexpr const char* focusSearchField = "FocusSearchField";
inline constexpr const char* refreshInbox = "RefreshInbox";

} // namespace tessaro
