#include "Views/Shell/Resources.h"

#include <gtk/gtk.h>

extern "C" {
#include <tessaro-resources.h> // The generator writes no guard for C++.
}

namespace tessaro {

void registerResources() {
    tessaro_register_resource();
    GdkDisplay* display = gdk_display_get_default();
    gtk_icon_theme_add_resource_path(
        gtk_icon_theme_get_for_display(display), "/com/vandel/Tessaro/icons");
    // The display keeps the provider until the program ends.
    GtkCssProvider* style = gtk_css_provider_new();
    gtk_css_provider_load_from_resource(style, "/com/vandel/Tessaro/style.css");
    gtk_style_context_add_provider_for_display(
        display, GTK_STYLE_PROVIDER(style), GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

} // namespace tessaro
