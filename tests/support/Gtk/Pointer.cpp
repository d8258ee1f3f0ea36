#include "support/Gtk/Pointer.h"

#include "support/MainLoop.h"

#include <gdk/x11/gdkx.h>
#include <gtk/gtk.h>

// This include comes last, because its macros would change other headers.
#include <X11/extensions/XTest.h>

namespace tessaro::test {

namespace {

Display* display() {
    return gdk_x11_display_get_xdisplay(gdk_display_get_default());
}

} // namespace

Gdk::Rectangle placeOnDisplay(Gtk::Widget& widget) {
    GtkNative* native = gtk_widget_get_native(widget.gobj());
    double x = 0, y = 0, left = 0, top = 0;
    gtk_native_get_surface_transform(native, &left, &top);
    gtk_widget_translate_coordinates(widget.gobj(), GTK_WIDGET(native), 0, 0, &x, &y);
    int placeX = 0, placeY = 0;
    Window child = None;
    XTranslateCoordinates(
        display(), gdk_x11_surface_get_xid(gtk_native_get_surface(native)),
        DefaultRootWindow(display()), int(left + x), int(top + y), &placeX, &placeY, &child);
    return {placeX, placeY, widget.get_width(), widget.get_height()};
}

bool isWithin(Gtk::Widget& inner, Gtk::Widget& outer) {
    const auto one = placeOnDisplay(inner), other = placeOnDisplay(outer);
    auto common = one;
    common.intersect(other);
    return common.get_width() == one.get_width() && common.get_height() == one.get_height();
}

void Pointer::click(Gtk::Widget& widget) {
    click(widget, widget.get_width() / 2, widget.get_height() / 2);
}

void Pointer::click(Gtk::Widget& widget, double x, double y) {
    press(widget, x, y, 1);
}

void Pointer::scroll(Gtk::Widget& widget, bool isUp) {
    // The X protocol has buttons for the wheel's steps.
    press(widget, widget.get_width() / 2, widget.get_height() / 2, isUp ? 4 : 5);
}

void Pointer::press(Gtk::Widget& widget, double x, double y, unsigned button) {
    const auto place = placeOnDisplay(widget);
    XTestFakeMotionEvent(
        display(), -1, place.get_x() + int(x), place.get_y() + int(y), CurrentTime);
    XTestFakeButtonEvent(display(), button, True, CurrentTime);
    XTestFakeButtonEvent(display(), button, False, CurrentTime);
    XSync(display(), False);
    runPending();
}

} // namespace tessaro::test
