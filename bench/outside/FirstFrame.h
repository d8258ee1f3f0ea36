#pragma once

#include <X11/Xlib.h>

#include <memory>

namespace tessaro::bench {

/// Sees any program's window being drawn on the display. Make it before the program starts.
class FirstFrame {
public:
    FirstFrame();

    /// Waits for a drawing as large as a main window. Throws when that takes too long.
    void wait();

private:
    struct CloseDisplay {
        void operator()(Display* display) const { XCloseDisplay(display); }
    };
    std::unique_ptr<Display, CloseDisplay> display_;
    int damageEvent_ = 0;
};

} // namespace tessaro::bench
