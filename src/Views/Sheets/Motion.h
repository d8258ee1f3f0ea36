#pragma once

#include <gtkmm/settings.h>
#include <gtkmm/widget.h>

namespace tessaro {

/// Whether animations run, or the desktop asks for reduced motion. Transitions of the style sheet
/// and AdwAnimation obey by themselves; this is for everything else.
inline bool animationsRun(const Gtk::Widget& widget) {
    return widget.get_settings()->property_gtk_enable_animations().get_value();
}

} // namespace tessaro
