#include "Views/Shell/SystemReport.h"

#include "Services/BuildConfig.h"

#include <adwaita.h>

namespace tessaro {

namespace {

std::string version(unsigned major, unsigned minor, unsigned micro) {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(micro);
}

} // namespace

std::string systemReport(const Engine* engine, const Gtk::Widget& widget) {
    auto* shown = const_cast<GtkWidget*>(widget.gobj());
    const char* sandbox = engine && engine->worksHere() ? "sandboxed" : "not sandboxed";
    // The names of the types tell the windowing system, and whether a graphics card draws.
    return "Tessaro " + std::string(build::version) + ", " +
           (engine ? engine->name() : "no engine") + " " + sandbox + ", GTK " +
           version(gtk_get_major_version(), gtk_get_minor_version(), gtk_get_micro_version()) +
           ", libadwaita " +
           version(adw_get_major_version(), adw_get_minor_version(), adw_get_micro_version()) +
           ", " + G_OBJECT_TYPE_NAME(gtk_widget_get_display(shown)) + ", " +
           G_OBJECT_TYPE_NAME(gtk_native_get_renderer(gtk_widget_get_native(shown)));
}

} // namespace tessaro
