#include "Screen.h"

#include "Platform/GHandle.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <cairo.h>

#include <algorithm>
#include <cstdint>
#include <thread>
#include <vector>

namespace tessaro::demo {

namespace {

struct FreeX {
    void operator()(void* memory) const { XFree(memory); }
};
struct DestroyImage {
    void operator()(XImage* image) const { XDestroyImage(image); }
};
using Image = std::unique_ptr<XImage, DestroyImage>;
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;

/// A window's property as bytes; elements of format 32 are longs. Deletes it where asked.
std::vector<unsigned char>
readProperty(Display* display, Window window, Atom property, bool remove = false) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(
            display, window, property, 0, 1 << 20, remove, AnyPropertyType, &type, &format, &count,
            &rest, &data) != Success ||
        !data)
        return {};
    const std::unique_ptr<unsigned char, FreeX> owner(data);
    const std::size_t size = format == 32 ? sizeof(long) : static_cast<std::size_t>(format) / 8;
    return {data, data + count * size};
}

std::vector<Window> topLevels(Display* display) {
    const auto bytes = readProperty(
        display, DefaultRootWindow(display), XInternAtom(display, "_NET_CLIENT_LIST", False));
    const auto* windows = reinterpret_cast<const Window*>(bytes.data());
    return {windows, windows + bytes.size() / sizeof(Window)};
}

/// Where a window is on the display, without the shadow that it draws around itself.
std::optional<Screen::Area> visibleArea(Display* display, Window window) {
    XWindowAttributes shape;
    if (!XGetWindowAttributes(display, window, &shape))
        return std::nullopt;
    Screen::Area area{0, 0, shape.width, shape.height};
    Window child = None;
    XTranslateCoordinates(
        display, window, DefaultRootWindow(display), 0, 0, &area.x, &area.y, &child);
    const auto bytes =
        readProperty(display, window, XInternAtom(display, "_GTK_FRAME_EXTENTS", False));
    if (bytes.size() == 4 * sizeof(long)) {
        const auto* extents =
            reinterpret_cast<const long*>(bytes.data()); // Left, right, top, bottom.
        area.x += static_cast<int>(extents[0]);
        area.y += static_cast<int>(extents[2]);
        area.width -= static_cast<int>(extents[0] + extents[1]);
        area.height -= static_cast<int>(extents[2] + extents[3]);
    }
    return area;
}

Screen::Area unite(const Screen::Area& one, const Screen::Area& other) {
    const int left = std::min(one.x, other.x);
    const int top = std::min(one.y, other.y);
    return {
        left, top, std::max(one.x + one.width, other.x + other.width) - left,
        std::max(one.y + one.height, other.y + other.height) - top};
}

Image readImage(Display* display, Screen::Area area) {
    XWindowAttributes root;
    XGetWindowAttributes(display, DefaultRootWindow(display), &root);
    const int left = std::max(area.x, 0);
    const int top = std::max(area.y, 0);
    const int width = std::min(area.x + area.width, root.width) - left;
    const int height = std::min(area.y + area.height, root.height) - top;
    if (width <= 0 || height <= 0)
        return nullptr;
    return Image(XGetImage(
        display, DefaultRootWindow(display), left, top, static_cast<unsigned>(width),
        static_cast<unsigned>(height), AllPlanes, ZPixmap));
}

std::uint32_t colorAt(XImage* image, int x, int y) {
    return static_cast<std::uint32_t>(XGetPixel(image, x, y) & 0xffffff);
}

} // namespace

void Screen::CloseDisplay::operator()(Display* display) const {
    XCloseDisplay(display);
}

Screen::Screen() : display_(XOpenDisplay(nullptr)) {}

std::optional<Screen::Area> Screen::findWindow(const std::string& title) const {
    Display* display = display_.get();
    std::optional<Area> largest;
    for (const Window window : topLevels(display)) {
        const auto name =
            readProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False));
        if (!std::string(name.begin(), name.end()).ends_with(title))
            continue;
        const auto area = visibleArea(display, window);
        if (area && (!largest || area->width * area->height > largest->width * largest->height))
            largest = area;
    }
    return largest;
}

Screen::Area Screen::withPopovers(Area area) const {
    Display* display = display_.get();
    Window root = None;
    Window parent = None;
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count);
    const std::unique_ptr<Window, FreeX> owner(children);
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes shape;
        if (!XGetWindowAttributes(display, children[i], &shape) || !shape.override_redirect ||
            shape.c_class != InputOutput || shape.map_state != IsViewable || shape.width < 20)
            continue;
        if (const auto popover = visibleArea(display, children[i]))
            area = unite(area, *popover);
    }
    return area;
}

void Screen::paintGround(unsigned long color) const {
    Display* display = display_.get();
    XSetWindowBackground(display, DefaultRootWindow(display), color);
    XClearWindow(display, DefaultRootWindow(display));
    XSync(display, False);
}

bool Screen::writePng(const Area& area, const std::filesystem::path& file) const {
    const Image image = readImage(display_.get(), area);
    if (!image)
        return false;
    const Surface surface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, image->width, image->height));
    unsigned char* data = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int y = 0; y < image->height; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(data + y * stride);
        for (int x = 0; x < image->width; ++x)
            row[x] = colorAt(image.get(), x, y);
    }
    cairo_surface_mark_dirty(surface.get());
    return cairo_surface_write_to_png(surface.get(), file.c_str()) == CAIRO_STATUS_SUCCESS;
}

void Screen::waitForRest(const Area& area, std::chrono::milliseconds limit) const {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + limit;
    auto since = Clock::now();
    std::string before;
    while (Clock::now() < deadline && Clock::now() - since < std::chrono::milliseconds(250)) {
        const Image image = readImage(display_.get(), area);
        std::string now;
        if (image)
            now.assign(
                image->data, static_cast<std::size_t>(image->bytes_per_line) *
                                 static_cast<std::size_t>(image->height));
        if (now != before)
            since = Clock::now();
        before = std::move(now);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

int Screen::countPixels(const Area& area, unsigned long color) const {
    const Image image = readImage(display_.get(), area);
    int count = 0;
    for (int y = 0; image && y < image->height; ++y)
        for (int x = 0; x < image->width; ++x)
            count += colorAt(image.get(), x, y) == color;
    return count;
}

std::optional<std::string> Screen::clipboardText() const {
    Display* display = display_.get();
    const Atom answer = XInternAtom(display, "TESSARO_WALK", False);
    const Window window =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
    XConvertSelection(
        display, XInternAtom(display, "CLIPBOARD", False),
        XInternAtom(display, "UTF8_STRING", False), answer, window, CurrentTime);
    std::optional<std::string> text;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    XEvent event;
    while (std::chrono::steady_clock::now() < deadline) {
        if (XCheckTypedWindowEvent(display, window, SelectionNotify, &event)) {
            if (event.xselection.property != None) {
                const auto bytes = readProperty(display, window, answer, true);
                text.emplace(bytes.begin(), bytes.end());
            }
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    XDestroyWindow(display, window);
    return text;
}

void Screen::typeKey(const char* keysym, const char* modifier) const {
    Display* display = display_.get();
    const auto turn = [&](const char* name, bool isDown) {
        XTestFakeKeyEvent(
            display, XKeysymToKeycode(display, XStringToKeysym(name)), isDown, CurrentTime);
    };
    if (modifier)
        turn(modifier, true);
    turn(keysym, true);
    turn(keysym, false);
    if (modifier)
        turn(modifier, false);
    XSync(display, False);
}

void Screen::movePointer(int x, int y) const {
    XTestFakeMotionEvent(display_.get(), -1, x, y, CurrentTime);
    XSync(display_.get(), False);
}

void Screen::click(int x, int y, unsigned button) const {
    movePointer(x, y);
    pressButton(button);
    releaseButton(button);
}

void Screen::pressButton(unsigned button) const {
    XTestFakeButtonEvent(display_.get(), button, True, CurrentTime);
    XSync(display_.get(), False);
}

void Screen::releaseButton(unsigned button) const {
    XTestFakeButtonEvent(display_.get(), button, False, CurrentTime);
    XSync(display_.get(), False);
}

} // namespace tessaro::demo
