#pragma once

#include <gtkmm/widget.h>

namespace tessaro::test {

/// The widget's place on the display, whether or not something covers it.
Gdk::Rectangle placeOnDisplay(Gtk::Widget& widget);
/// Whether `inner` lies wholly inside the area of `outer`.
bool isWithin(Gtk::Widget& inner, Gtk::Widget& outer);

/// Moves the display's pointer and presses its button.
class Pointer {
public:
    /// Presses and releases the first button in the middle of the widget.
    static void click(Gtk::Widget& widget);
    /// The same at a point of the widget.
    static void click(Gtk::Widget& widget, double x, double y);
    /// Turns the wheel by one step in the middle of the widget.
    static void scroll(Gtk::Widget& widget, bool isUp);

private:
    static void press(Gtk::Widget& widget, double x, double y, unsigned button);
};

} // namespace tessaro::test
