#include "Platform/Gtk/GtkDesktop.h"

#include "Platform/GHandle.h"
#include "Platform/Machine.h"
#include "Platform/WebAddress.h"

#include <gtk/gtk.h>

#include <string_view>

namespace tessaro {

namespace {

/// Starts the desktop's handler for the address; the context hands the focus on to it.
void launch(const char* address) {
    const auto context = GObjectPtr<GdkAppLaunchContext>::adopt(
        gdk_display_get_app_launch_context(gdk_display_get_default()));
    g_app_info_launch_default_for_uri_async(
        address, G_APP_LAUNCH_CONTEXT(context.get()), nullptr, nullptr, nullptr);
}

} // namespace

void GtkDesktop::openAddress(const std::string& address) {
    if (isOpenableAddress(address))
        launch(address.c_str());
}

void GtkDesktop::openWithItsProgram(const std::string& address) {
    const char* scheme = g_uri_peek_scheme(address.c_str());
    if (!scheme || std::string_view(scheme) == "file")
        return;
    const auto program = GObjectPtr<GAppInfo>::adopt(g_app_info_get_default_for_uri_scheme(scheme));
    // A confined program sees none of the desktop's; the portal asks the person.
    if (program || machine::isConfined())
        launch(address.c_str());
}

void GtkDesktop::openFile(const std::filesystem::path& file) {
    if (const GCharPtr address{g_filename_to_uri(file.c_str(), nullptr, nullptr)})
        launch(address.get());
}

void GtkDesktop::showNotification(
    DesktopNotification notification, DesktopNotifier::Clicked clicked) {
    notifier_.show(std::move(notification), std::move(clicked));
}

void GtkDesktop::withdrawNotification(const std::string& id) {
    notifier_.withdraw(id);
}

void GtkDesktop::copyText(const std::string& text) {
    gdk_clipboard_set_text(gdk_display_get_clipboard(gdk_display_get_default()), text.c_str());
}

} // namespace tessaro
