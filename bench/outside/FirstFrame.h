#pragma once

#include <X11/Xlib.h>

#include <memory>

namespace tessaro::bench {

/// Sees windows being drawn on the display, whoever they belong to. Make it before the program is
/// started.
class FirstFrame {
public:
    FirstFrame();

    /// Waits until as much as a main window was drawn at once; throws when that takes too long.
    void wait();

private:
    struct CloseDisplay {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };
    std::unique_ptr<Display, CloseDisplay> display_;
    int damageEvent_ = 0;
};

} // namespace tessaro::bench
