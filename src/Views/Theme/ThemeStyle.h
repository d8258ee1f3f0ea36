#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/cssprovider.h>

#include <string>

namespace tessaro {

class ThemeManager;

/// The colours of the active preset as named colours of the style sheets: `tsr_primary`,
/// `tsr_primary_light`, `tsr_primary_contrast`, and libadwaita's accent in their image. A change of
/// preset or appearance replaces the definitions, and everything drawn with them is drawn again in
/// the next frame. One per display, as long as windows are open. UI thread only.
class ThemeStyle {
public:
    /// After the toolkit was initialised. @param theme  outlives this
    explicit ThemeStyle(ThemeManager& theme);
    ~ThemeStyle();
    ThemeStyle(const ThemeStyle&) = delete;
    ThemeStyle& operator=(const ThemeStyle&) = delete;

private:
    void redefine();

    ThemeManager& theme_;
    Glib::RefPtr<Gtk::CssProvider> provider_ = Gtk::CssProvider::create();
    std::string definitions_;
    ScopedConnection themeChanged_;
};

} // namespace tessaro
