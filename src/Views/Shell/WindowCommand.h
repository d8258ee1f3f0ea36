#pragma once

#include <string>
#include <vector>

namespace tessaro {

/// A command of the main window that a key gives and the inbox browsers carry out.
struct WindowCommand {
    std::string action;                    ///< Name of the window's action, without "win.".
    std::string title;                     ///< As the menu and the list of shortcuts name it.
    std::vector<std::string> accelerators; ///< In GTK's notation; the first one is shown.
    const char* notification;              ///< What is posted, once per press.
};

/// The commands of the menu "Trò Chuyện", in its order.
const std::vector<WindowCommand>& conversationCommands();

/// The keys for the inbox that no menu names.
const std::vector<WindowCommand>& browserCommands();

} // namespace tessaro
