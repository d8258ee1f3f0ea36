#pragma once

#include <gdk/gdk.h>

namespace tessaro::test {

/// Presses keys of the display's keyboard. They pass the window manager's focus and the toolkit's
/// key bindings, as a person's keys do.
class Keyboard {
public:
    /// @param keysym    a key of the keyboard, such as GDK_KEY_Escape
    /// @param modifier  a key that is held meanwhile, such as GDK_KEY_Shift_L
    static void press(guint keysym, guint modifier = 0);
    /// Holds a key down, or lets it go.
    static void hold(guint keysym, bool isDown);
    /// Gives the keyboard another layout, such as "vn". A display starts with "us".
    static void setLayout(const char* name);
};

} // namespace tessaro::test
