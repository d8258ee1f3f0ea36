#include "outside/FirstFrame.h"

#include <X11/extensions/Xdamage.h>
#include <poll.h>

#include <stdexcept>

namespace tessaro::bench {

namespace {

constexpr int patience = 20'000; ///< Milliseconds.
constexpr int smallestWidth = 800, smallestHeight = 500;

} // namespace

FirstFrame::FirstFrame() : display_(XOpenDisplay(nullptr)) {
    int errorBase = 0;
    if (!display_ || !XDamageQueryExtension(display_.get(), &damageEvent_, &errorBase))
        throw std::runtime_error("no display that tells what is drawn");
    XDamageCreate(display_.get(), DefaultRootWindow(display_.get()), XDamageReportRawRectangles);
    XSync(display_.get(), True); // Drops the reports of windows that are open already.
}

void FirstFrame::wait() {
    while (true) {
        while (XPending(display_.get())) {
            XEvent event;
            XNextEvent(display_.get(), &event);
            const auto& area = reinterpret_cast<const XDamageNotifyEvent&>(event).area;
            if (event.type == damageEvent_ + XDamageNotify && area.width >= smallestWidth &&
                area.height >= smallestHeight)
                return;
        }
        pollfd connection{ConnectionNumber(display_.get()), POLLIN, 0};
        if (poll(&connection, 1, patience) <= 0)
            throw std::runtime_error("no window was drawn");
    }
}

} // namespace tessaro::bench
