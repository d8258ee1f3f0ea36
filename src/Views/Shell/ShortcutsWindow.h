#pragma once

#include "Views/Shell/InfoWindow.h"

namespace tessaro {

/// Lists the commands and their keys.
class ShortcutsWindow : public InfoWindow {
public:
    ShortcutsWindow();
};

} // namespace tessaro
