#include "support/Gtk/ForeignWindow.h"

#include "Platform/GHandle.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <gdk/x11/gdkx.h>

namespace tessaro::test {

namespace {

Display* display() {
    return gdk_x11_display_get_xdisplay(gdk_display_get_default());
}

/// The elements of a property; windows and atoms have 32 bits, which Xlib widens to a long.
template <typename Element>
std::vector<Element> property(::Window window, const char* name) {
    Atom type = None;
    int bits = 0;
    unsigned long count = 0, left = 0;
    unsigned char* bytes = nullptr;
    gdk_x11_display_error_trap_push(gdk_display_get_default()); // The window may be gone.
    XGetWindowProperty(
        display(), window, XInternAtom(display(), name, False), 0, 1024, False, AnyPropertyType,
        &type, &bits, &count, &left, &bytes);
    gdk_x11_display_error_trap_pop_ignored(gdk_display_get_default());
    const std::unique_ptr<unsigned char, Releaser<XFree>> owner(bytes);
    const auto* const elements = reinterpret_cast<const Element*>(bytes);
    return bytes ? std::vector<Element>(elements, elements + count) : std::vector<Element>();
}

std::string text(::Window window, const char* name) {
    const auto characters = property<char>(window, name);
    return {characters.begin(), characters.end()};
}

} // namespace

std::vector<ForeignWindow> ForeignWindow::ofClass(const std::string& name) {
    std::vector<ForeignWindow> found;
    for (const auto id : property<unsigned long>(XDefaultRootWindow(display()), "_NET_CLIENT_LIST"))
        // Two texts, each ended by a zero byte: the instance and the class.
        if (text(id, "WM_CLASS").ends_with('\0' + name + '\0'))
            found.push_back(ForeignWindow(id));
    return found;
}

std::string ForeignWindow::title() const {
    return text(id_, "_NET_WM_NAME");
}

bool ForeignWindow::isActive() const {
    const auto active =
        property<unsigned long>(XDefaultRootWindow(display()), "_NET_ACTIVE_WINDOW");
    return !active.empty() && active[0] == id_;
}

void ForeignWindow::close() const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = id_;
    event.xclient.message_type = XInternAtom(display(), "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2; // From a pager, on behalf of the user.
    XSendEvent(
        display(), XDefaultRootWindow(display()), False,
        SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XSync(display(), False);
}

} // namespace tessaro::test
