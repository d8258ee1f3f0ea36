#include "support/Gtk/Pointer.h"

#include "Platform/ScopedConnection.h"
#include "support/MainLoop.h"

#include <gdk/x11/gdkx.h>
#include <gtkmm/native.h>

#include <cmath>
#include <functional>

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

void warp(GtkNative* native, float x, float y) {
    double shadowX = 0, shadowY = 0; // A window that draws its own frame is larger than it looks.
    gtk_native_get_surface_transform(native, &shadowX, &shadowY);
    int rootX = 0, rootY = 0;
    ::Window child = None;
    XTranslateCoordinates(
        display(), gdk_x11_surface_get_xid(gtk_native_get_surface(native)),
        XDefaultRootWindow(display()), static_cast<int>(x + shadowX), static_cast<int>(y + shadowY),
        &rootX, &rootY, &child);
    XTestFakeMotionEvent(display(), -1, rootX, rootY, CurrentTime);
    deliver();
}

void button(unsigned number, bool isDown) {
    XTestFakeButtonEvent(display(), number, isDown, CurrentTime);
    deliver();
}

} // namespace

void Pointer::moveTo(Gtk::Widget& widget, double x, double y) {
    GtkNative* native = gtk_widget_get_native(widget.gobj());
    const auto target = [&] {
        graphene_point_t inside = GRAPHENE_POINT_INIT(static_cast<float>(x), static_cast<float>(y));
        graphene_point_t inWindow;
        if (!gtk_widget_compute_point(widget.gobj(), GTK_WIDGET(native), &inside, &inWindow))
            std::abort();
        return inWindow;
    };
    graphene_point_t seen = GRAPHENE_POINT_INIT(-1, -1);
    const std::function<void(GtkEventControllerMotion*, double, double)> see =
        [&](GtkEventControllerMotion*, double atX, double atY) {
            seen = GRAPHENE_POINT_INIT(static_cast<float>(atX), static_cast<float>(atY));
        };
    GtkEventController* controller = gtk_event_controller_motion_new();
    gtk_event_controller_set_propagation_phase(controller, GTK_PHASE_CAPTURE);
    const auto entering =
        connectSignal<void(GtkEventControllerMotion*, double, double)>(controller, "enter", see);
    const auto moving =
        connectSignal<void(GtkEventControllerMotion*, double, double)>(controller, "motion", see);
    gtk_widget_add_controller(GTK_WIDGET(native), controller);

    // A window that was just resized may still be moved, and loses what the pointer does meanwhile:
    // the pointer is moved until the window has seen it there. A step aside first, since a pointer
    // that is there already makes no event.
    runUntil([&] {
        const auto inWindow = target();
        if (std::abs(seen.x - inWindow.x) < 1 && std::abs(seen.y - inWindow.y) < 1)
            return true;
        warp(native, inWindow.x, inWindow.y + 2);
        warp(native, inWindow.x, inWindow.y);
        return false;
    });
    gtk_widget_remove_controller(GTK_WIDGET(native), controller);
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
