#pragma once

#include "Views/Theme/ThemeStyle.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

namespace tessaro::test {

/// Everything that a screen needs, with real stores in private folders, and a real window to show
/// it in. The appearance is light.
class TestScreen : public ScreenWorld {
public:
    ThemeStyle style{theme};
    Gtk::Window window;

    explicit TestScreen(EngineLoader* itsEngine = nullptr) : ScreenWorld(itsEngine) {
        theme.setAppearanceMode("light");
    }
    ~TestScreen() { window.unset_child(); }

    /// Puts the widget into the window and waits until the window is drawn and has the focus.
    void show(Gtk::Widget& widget) {
        window.set_default_size(900, 560);
        window.set_child(widget);
        window.present();
        settle();
        runUntil([this] { return window.is_active(); });
    }
    /// Waits until everything that changed in the window is drawn.
    void settle() { settle(window); }
    /// The same for another window.
    static void settle(Gtk::Window& shown) {
        runUntil([&] { return shown.get_mapped() && shown.get_width() > 0; });
        // The first frame lays out what changed; after the second it is drawn.
        int frames = 0;
        const auto tick = shown.add_tick_callback([&](const auto&) { return ++frames < 3; });
        if (!runUntil([&] { return frames >= 3; }))
            shown.remove_tick_callback(tick);
        runPending();
    }
};

} // namespace tessaro::test
