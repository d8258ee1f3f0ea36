#pragma once

#include "Platform/ScopedConnection.h"

#include <gtkmm/cssprovider.h>

#include <string>

namespace tessaro {

class ThemeManager;

/// Defines the active preset's colours as named colours of the style sheets: `tsr_primary`,
/// `tsr_primary_light`, `tsr_primary_contrast` and libadwaita's accent colours. A change of preset
/// or appearance replaces the definitions, and the toolkit draws everything again in the next
/// frame. There is one per display, and it outlives the windows. UI thread only.
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
    std::string definitions_;
    ScopedConnection themeChanged_;
};

} // namespace tessaro
