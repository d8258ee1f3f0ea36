#pragma once

#include <gtkmm/widget.h>

namespace tessaro::test {

/// Where the widget is on the display, whatever lies over it.
Gdk::Rectangle placeOnDisplay(Gtk::Widget& widget);
/// Whether the whole of one widget lies where the other one is.
bool isWithin(Gtk::Widget& inner, Gtk::Widget& outer);

/// Moves and presses the display's own pointer.
class Pointer {
public:
    /// Presses and releases the first button in the middle of the widget.
    static void click(Gtk::Widget& widget);
    /// The same at a point of the widget.
    static void click(Gtk::Widget& widget, double x, double y);
};

} // namespace tessaro::test
