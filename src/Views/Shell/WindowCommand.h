#pragma once

#include <string>
#include <vector>

namespace tessaro {

/// A command of the main window that the person gives by a key and the inbox browser carries out.
struct WindowCommand {
    std::string action;                    ///< In GIO's notation, with its target if it has one.
    std::string title;                     ///< Shown in the menu and in the list of shortcuts.
    std::vector<std::string> accelerators; ///< In GTK's notation; the first one is shown.
    bool isInMenu = false;                 ///< In the menu "Trò Chuyện".
};

/// In the order of the menu and of the list of shortcuts.
const std::vector<WindowCommand>& windowCommands();

} // namespace tessaro
