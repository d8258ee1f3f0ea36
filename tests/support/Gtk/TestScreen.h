#pragma once

#include "Views/Theme/ThemeStyle.h"
#include "support/FakeGraph.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

namespace tessaro::test {

/// Everything that a screen needs, over real stores in a folder of its own, and a real window to
/// show it in, in a light appearance. The Graph API is a FakeGraph; pictures from the web do not
/// load.
class TestScreen : public ScreenWorld {
public:
    FakeGraph graph;
    ThemeStyle style{theme};
    Gtk::Window window;

    explicit TestScreen(EngineLoader* itsEngine = nullptr);
    ~TestScreen();

    /// Puts the widget into the window and waits until it is on screen and has the focus.
    void show(Gtk::Widget& widget);
    /// Waits until the window was drawn with everything that changed.
    void settle();
    /// The same for a window in front of it.
    static void settle(Gtk::Window& window);
};

} // namespace tessaro::test
