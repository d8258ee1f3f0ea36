#pragma once

#include "Views/Shell/InfoWindow.h"
#include "Views/Shell/WindowCommand.h"

#include <gtkmm/grid.h>

namespace tessaro {

/// Lists every key that gives a command.
class ShortcutsWindow : public InfoWindow {
public:
    explicit ShortcutsWindow(Gtk::Window& parent);

private:
    /// @param keys  in GTK's notation, in which "A...Z" is all from the one to the other
    void addRow(const std::string& title, const std::string& keys);

    Gtk::Grid list_;
    int rows_ = 0;
};

} // namespace tessaro
