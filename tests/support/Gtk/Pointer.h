#pragma once

#include <gtkmm/widget.h>

namespace tessaro::test {

/// Moves the display's own pointer, so that events take the road of a person's: through the
/// display server, the toolkit and whatever lies in front. Places are in points within a widget
/// that is on screen.
class Pointer {
public:
    static void moveTo(Gtk::Widget& widget, double x, double y);
    static void press(unsigned button = 1);
    static void release(unsigned button = 1);
    static void clickAt(Gtk::Widget& widget, double x, double y, unsigned button = 1);
    /// Turns the wheel towards the person by so many notches.
    static void scrollDown(int notches);
};

} // namespace tessaro::test
