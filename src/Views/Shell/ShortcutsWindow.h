#pragma once

#include "Views/Shell/InfoWindow.h"

namespace tessaro {

/// Lists every key that gives a command.
class ShortcutsWindow : public InfoWindow {
public:
    explicit ShortcutsWindow(Gtk::Window& parent);
};

} // namespace tessaro
