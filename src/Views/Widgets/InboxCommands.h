#pragma once

#include "Engine/WebPermissions.h"

#include "Platform/Property.h"
#include "ViewModels/UnreadCount.h"

#include <sigc++/signal.h>

#include <string>

namespace tessaro {

/// Commands for the inbox browser, announced by name through the NotificationCenter. They carry no
/// values.
inline constexpr const char* webViewZoomIn = "tsr.webview.zoomIn";
inline constexpr const char* webViewZoomOut = "tsr.webview.zoomOut";
inline constexpr const char* webViewReload = "tsr.webview.reload";
inline constexpr const char* webViewGoHome = "tsr.webview.goHome";
inline constexpr const char* webViewThemeChanged = "tsr.webview.themeChanged";

/// Posted by the commands of the menu "Trò Chuyện".
inline constexpr const char* focusSearchField = "FocusSearchField";
inline constexpr const char* refreshInbox = "RefreshInbox";

/// What the window, the columns and the inbox browser tell one another. UI thread only.
struct InboxSignals {
    sigc::signal<void()> zoomReset; ///< The page gets its natural size back.
    sigc::signal<void()> find;      ///< The bar opens in which a text is looked for.
    sigc::signal<void(bool isForward)> walkHistory; ///< The browser goes a page back or forward.
    sigc::signal<void(bool isForward)> walkAreas; ///< The focus goes to another part of the window.
    sigc::signal<void()> addAccount;              ///< The dialog for a new account opens.
    sigc::signal<void()> addPage;                 ///< Likewise, for the selected account.
    /// Selects the Page at that position of the list, counted from 1. Nothing is selected where
    /// the list has no such position.
    sigc::signal<void(int position)> choosePage;
    /// The person clicked a desktop notification. The window comes to the front and selects the
    /// Page of that Graph id. The token permits the window to take the focus; it is empty where
    /// the desktop gives none.
    sigc::signal<void(const std::string& pageId, const std::string& activationToken)> requested;
    /// The inbox of the Page of that Graph id has come on screen by itself, such as by going back.
    sigc::signal<void(const std::string& pageId)> shown;
    /// Something of the page begins or ceases to fill the screen.
    sigc::signal<void(bool isFullScreen)> fullScreen;
    Property<UnreadCount> unread; ///< Of the selected Page, written by its browser.
    Property<WebPermissions::Recording> recording; ///< By pages, written likewise.
};

} // namespace tessaro
