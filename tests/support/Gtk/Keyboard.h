#pragma once

#include <gdk/gdk.h>

namespace tessaro::test {

/// Presses keys of the display's own keyboard, so that they take the road of a person's: through
/// the window manager's focus and the toolkit's key bindings.
class Keyboard {
public:
    /// @param keysym    of a key that the keyboard has, such as GDK_KEY_Escape
    /// @param modifier  held meanwhile, such as GDK_KEY_Shift_L
    static void press(guint keysym, guint modifier = 0);
    /// Gives the keyboard another layout, such as "vn". The display's first one is "us".
    static void setLayout(const char* name);
};

} // namespace tessaro::test
