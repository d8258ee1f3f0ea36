#include "Platform/Gtk/AdwAppearance.h"

#include "Platform/Clock.h"

#include <adwaita.h>

#include <string_view>

namespace tessaro {

namespace {

AdwColorScheme toAdw(ColorScheme scheme) {
    if (scheme == ColorScheme::system)
        return ADW_COLOR_SCHEME_DEFAULT;
    return scheme == ColorScheme::light ? ADW_COLOR_SCHEME_FORCE_LIGHT
                                        : ADW_COLOR_SCHEME_FORCE_DARK;
}

} // namespace

bool AdwAppearance::isReady() const {
    return adw_is_initialized();
}

void AdwAppearance::whenReady(std::function<void()> action) {
    // The application initialises the toolkit at its start-up, before the first turn of the main
    // loop.
    SystemClock::shared().post(Clock::Delay::zero(), std::move(action));
}

void AdwAppearance::setApplicationScheme(ColorScheme scheme) {
    if (isReady())
        adw_style_manager_set_color_scheme(adw_style_manager_get_default(), toAdw(scheme));
}

void AdwAppearance::setWindowScheme(Window window, ColorScheme scheme) {
    if (!isReady())
        return;
    GdkDisplay* display = gtk_widget_get_display(static_cast<GtkWidget*>(window));
    adw_style_manager_set_color_scheme(adw_style_manager_get_for_display(display), toAdw(scheme));
}

std::vector<Appearance::Window> AdwAppearance::openWindows() const {
    std::vector<Window> windows;
    if (!isReady())
        return windows;
    GListModel* toplevels = gtk_window_get_toplevels();
    for (guint i = 0; i < g_list_model_get_n_items(toplevels); ++i) {
        // The list keeps its windows alive.
        const auto window = GObjectPtr<GtkWidget>::adopt(
            static_cast<GtkWidget*>(g_list_model_get_item(toplevels, i)));
        windows.push_back(window.get());
    }
    return windows;
}

bool AdwAppearance::isEffectivelyDark() const {
    return isReady() && adw_style_manager_get_dark(adw_style_manager_get_default());
}

bool AdwAppearance::isHighContrast() const {
    return isReady() && adw_style_manager_get_high_contrast(adw_style_manager_get_default());
}

ScopedConnection AdwAppearance::observeEffective(std::function<void()> observer) {
    if (!isReady())
        return {};
    return connectSignal<void(AdwStyleManager*, GParamSpec*)>(
        adw_style_manager_get_default(), "notify",
        [observer = std::move(observer)](AdwStyleManager*, GParamSpec* property) {
            const std::string_view name = property->name;
            if (name == "dark" || name == "high-contrast")
                observer();
        });
}

} // namespace tessaro
