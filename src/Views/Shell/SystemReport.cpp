#include "Views/Shell/SystemReport.h"

#include "Platform/Background.h"
#include "Services/BuildConfig.h"

#include <adwaita.h>

namespace tessaro {

namespace {

std::string version(unsigned major, unsigned minor, unsigned micro) {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(micro);
}

} // namespace

Task<std::string> systemReport(const Engine* engine, const Gtk::Widget* widget) {
    auto* const shown = const_cast<GtkWidget*>(widget->gobj());
    // The names of the types tell the windowing system, and whether a graphics card draws.
    const std::string toolkit =
        "GTK " +
        version(gtk_get_major_version(), gtk_get_minor_version(), gtk_get_micro_version()) +
        ", libadwaita " +
        version(adw_get_major_version(), adw_get_minor_version(), adw_get_micro_version()) + ", " +
        G_OBJECT_TYPE_NAME(gtk_widget_get_display(shown)) + ", " +
        G_OBJECT_TYPE_NAME(gtk_native_get_renderer(gtk_widget_get_native(shown)));
    const std::string browser = co_await inBackground([engine]() -> std::string {
        if (!engine)
            return "no engine";
        return engine->name() + (engine->worksHere() ? ", sandboxed" : ", not sandboxed") +
               ", decodes " + engine->decodableMedia();
    });
    co_return "Tessaro " + std::string(build::version) + "; " + toolkit + "; " + browser;
}

} // namespace tessaro
