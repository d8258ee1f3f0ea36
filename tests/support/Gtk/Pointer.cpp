#include "support/Gtk/Pointer.h"

#include "support/MainLoop.h"

#include <gdk/x11/gdkx.h>
#include <gtkmm/eventcontrollermotion.h>
#include <gtkmm/window.h>

#include <cmath>

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

void warp(Gtk::Window& window, double x, double y) {
    double shadowX = 0, shadowY = 0; // A window that draws its own frame is larger than it looks.
    window.get_surface_transform(shadowX, shadowY);
    int rootX = 0, rootY = 0;
    ::Window child = None;
    XTranslateCoordinates(
        display(), gdk_x11_surface_get_xid(window.get_surface()->gobj()),
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
    auto& window = dynamic_cast<Gtk::Window&>(*widget.get_root());
    double seenX = -1, seenY = -1;
    const auto see = [&](double atX, double atY) {
        seenX = atX;
        seenY = atY;
    };
    const auto controller = Gtk::EventControllerMotion::create();
    controller->set_propagation_phase(Gtk::PropagationPhase::CAPTURE);
    controller->signal_enter().connect(see);
    controller->signal_motion().connect(see);
    window.add_controller(controller);

    // A window that was just resized may still be moved, and loses what the pointer does meanwhile:
    // the pointer is moved until the window has seen it there. A step aside first, since a pointer
    // that is there already makes no event.
    runUntil([&] {
        double inX = 0, inY = 0;
        widget.translate_coordinates(window, x, y, inX, inY);
        if (std::abs(seenX - inX) < 1 && std::abs(seenY - inY) < 1)
            return true;
        warp(window, inX, inY + 2);
        warp(window, inX, inY);
        return false;
    });
    window.remove_controller(controller);
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
