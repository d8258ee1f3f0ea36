#include "Engine/WebKit/WebKitWidget.h"

#include <gtk/gtk.h>
#include <webkit/webkit.h>

namespace tessaro {

namespace {

/// Whether the toolkit draws the windows without a graphics card, by choice or because there is
/// none.
bool windowsAreDrawnInSoftware() {
    // Not through the wrappers: making one for a window that is not ours would leak it.
    GListModel* const windows = gtk_window_get_toplevels();
    for (guint i = 0; i < g_list_model_get_n_items(windows); ++i) {
        const auto window = GObjectPtr<GtkNative>::adopt(
            static_cast<GtkNative*>(g_list_model_get_item(windows, i)));
        if (GSK_IS_CAIRO_RENDERER(gtk_native_get_renderer(window.get())))
            return true;
    }
    return false;
}

} // namespace

GObjectPtr<WebKitWebView> makeWebKitWidget(WebKitNetworkSession* session) {
    const auto settings = GObjectPtr<WebKitSettings>::adopt(webkit_settings_new());
    g_object_set(
        settings.get(), "enable-javascript", TRUE, "media-playback-requires-user-gesture", FALSE,
        // Window requests of scripts are answered in the same view, so they need no click.
        "javascript-can-open-windows-automatically", TRUE,
        // The quirks put other identities than the one set into requests to some hosts.
        "enable-site-specific-quirks", FALSE, nullptr);
    // An imitated graphics card would compile its programs in every web process and keep some fifty
    // megabytes there, and what it draws would be copied once more.
    if (windowsAreDrawnInSoftware())
        webkit_settings_set_hardware_acceleration_policy(
            settings.get(), WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    const auto policies = GObjectPtr<WebKitWebsitePolicies>::adopt(
        webkit_website_policies_new_with_policies("autoplay", WEBKIT_AUTOPLAY_ALLOW, nullptr));
    // A context of the view's own ends all its processes with it. A shared one would keep some,
    // with what pages left in their memory, for later pages.
    const auto context = GObjectPtr<WebKitWebContext>::adopt(webkit_web_context_new());
    // Right is what one of them knows. One that is not installed is left out by the engine.
    const char* const languages[] = {"vi_VN", "en_US", nullptr};
    webkit_web_context_set_spell_checking_languages(context.get(), languages);
    webkit_web_context_set_spell_checking_enabled(context.get(), TRUE);
    return GObjectPtr<WebKitWebView>::share(static_cast<WebKitWebView*>(g_object_new(
        WEBKIT_TYPE_WEB_VIEW, "web-context", context.get(), "network-session", session, "settings",
        settings.get(), "website-policies", policies.get(), nullptr)));
}

} // namespace tessaro
