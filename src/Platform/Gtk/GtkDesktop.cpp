#include "Platform/Gtk/GtkDesktop.h"

#include "Platform/GHandle.h"
#include "Platform/WebAddress.h"

#include <gtk/gtk.h>

namespace tessaro {

void GtkDesktop::openAddress(const std::string& address) {
    if (!isOpenableAddress(address))
        return;
    // The context hands the focus on to whatever opens the address.
    const auto context = GObjectPtr<GdkAppLaunchContext>::adopt(
        gdk_display_get_app_launch_context(gdk_display_get_default()));
    g_app_info_launch_default_for_uri_async(
        address.c_str(), G_APP_LAUNCH_CONTEXT(context.get()), nullptr, nullptr, nullptr);
}

void GtkDesktop::copyText(const std::string& text) {
    gdk_clipboard_set_text(gdk_display_get_clipboard(gdk_display_get_default()), text.c_str());
}

} // namespace tessaro
