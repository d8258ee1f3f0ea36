#pragma once

#include "Platform/SettingsStore.h"

#include <gtkmm/window.h>

namespace tessaro {

/// Gives the window the size that keepSize() has stored, in points, and maximises it if it was.
/// Before it is shown; does nothing where nothing is stored. UI thread only.
void restoreSize(Gtk::Window& window, const SettingsStore& settings);

/// Stores the size that the window has while it is not maximised, and whether it is. UI thread
/// only.
void keepSize(const Gtk::Window& window, SettingsStore& settings);

} // namespace tessaro
