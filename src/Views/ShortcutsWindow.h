#pragma once

#include "Views/InfoWindow.h"
#include "Views/WindowCommand.h"

#include <gtkmm/grid.h>

namespace tessaro {

/// Lists every key that gives a command.
class ShortcutsWindow : public InfoWindow {
public:
    explicit ShortcutsWindow(Gtk::Window& parent);

private:
    void addCommand(const WindowCommand& command);

    Gtk::Grid list_;
    int rows_ = 0;
};

} // namespace tessaro
