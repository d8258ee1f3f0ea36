#include "support/Gtk/Pointer.h"

#include "support/MainLoop.h"

#include <gdk/x11/gdkx.h>
#include <gtkmm/native.h>

// Its macros would change what comes after it.
#include <X11/extensions/XTest.h>

namespace tessaro::test {

namespace {

Display* display() {
    return gdk_x11_display_get_xdisplay(gdk_display_get_default());
}

/// Lets the event reach the program before the next one is made.
void deliver() {
    XSync(display(), False);
    runPending();
}

void button(unsigned number, bool isDown) {
    XTestFakeButtonEvent(display(), number, isDown, CurrentTime);
    deliver();
}

} // namespace

void Pointer::moveTo(Gtk::Widget& widget, double x, double y) {
    GtkNative* native = gtk_widget_get_native(widget.gobj());
    graphene_point_t inside = GRAPHENE_POINT_INIT(static_cast<float>(x), static_cast<float>(y));
    graphene_point_t inWindow;
    if (!gtk_widget_compute_point(widget.gobj(), GTK_WIDGET(native), &inside, &inWindow))
        std::abort();
    double shadowX = 0, shadowY = 0; // A window that draws its own frame is larger than it looks.
    gtk_native_get_surface_transform(native, &shadowX, &shadowY);
    int rootX = 0, rootY = 0;
    ::Window child = None;
    XTranslateCoordinates(
        display(), gdk_x11_surface_get_xid(gtk_native_get_surface(native)),
        XDefaultRootWindow(display()), static_cast<int>(inWindow.x + shadowX),
        static_cast<int>(inWindow.y + shadowY), &rootX, &rootY, &child);
    XTestFakeMotionEvent(display(), -1, rootX, rootY, CurrentTime);
    deliver();
}

void Pointer::press(unsigned number) {
    button(number, true);
}

void Pointer::release(unsigned number) {
    button(number, false);
}

void Pointer::clickAt(Gtk::Widget& widget, double x, double y, unsigned number) {
    moveTo(widget, x, y);
    press(number);
    release(number);
}

void Pointer::scrollDown(int notches) {
    for (int i = 0; i < notches; ++i) {
        press(5);
        release(5);
    }
}

} // namespace tessaro::test
