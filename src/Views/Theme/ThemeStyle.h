#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/cssprovider.h>

#include <string>

namespace tessaro {

class ThemeManager;

/// Defines the active preset's colours, and those that differ in light and dark, as named colours
/// of the style sheets: the first of them that data/style.css names, and libadwaita's accent
/// colours. A change of preset
/// or appearance replaces the definitions, and the toolkit draws everything again in the next
/// frame. While the desktop has high contrast, data/high-contrast.css is laid above the style
/// sheet. There is one per display, and it outlives the windows. UI thread only.
class ThemeStyle {
public:
    /// To be made after the toolkit was initialised.
    /// @param theme  outlives this
    explicit ThemeStyle(ThemeManager& theme);
    ~ThemeStyle();

private:
    void redefine();

    ThemeManager& theme_;
    Glib::RefPtr<Gtk::CssProvider> provider_ = Gtk::CssProvider::create();
    Glib::RefPtr<Gtk::CssProvider> highContrast_ = Gtk::CssProvider::create();
    std::string definitions_;
    ScopedConnection themeChanged_;
};

} // namespace tessaro
