#include "support/Gtk/Keyboard.h"

#include "support/MainLoop.h"

#include <gdk/x11/gdkx.h>
#include <glibmm/spawn.h>

// This include comes last, because its macros would change other headers.
#include <X11/extensions/XTest.h>

namespace tessaro::test {

void Keyboard::hold(guint keysym, bool isDown) {
    Display* display = gdk_x11_display_get_xdisplay(gdk_display_get_default());
    XAutoRepeatOff(display); // On a busy machine much time may pass between press and release.
    XTestFakeKeyEvent(display, XKeysymToKeycode(display, keysym), isDown, CurrentTime);
    XSync(display, False);
    runPending();
}

void Keyboard::press(guint keysym, guint modifier) {
    if (modifier)
        hold(modifier, true);
    hold(keysym, true);
    hold(keysym, false);
    if (modifier)
        hold(modifier, false);
}

void Keyboard::setLayout(const char* name) {
    Glib::spawn_command_line_sync(std::string("setxkbmap ") + name);
    runPending();
}

} // namespace tessaro::test
