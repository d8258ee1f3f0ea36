#pragma once

#include "Views/Theme/ThemeStyle.h"
#include "support/FakeGraph.h"
#include "support/Gtk/ScreenWorld.h"
#include "support/Gtk/Widgets.h"
#include "support/MainLoop.h"

namespace tessaro::test {

/// Everything that a screen needs, with real stores in private folders, and a real window to show
/// it in. The appearance is light. The Graph API is a FakeGraph; pictures from the web do not load.
class TestScreen : public ScreenWorld {
public:
    FakeGraph graph;
    ThemeStyle style{theme};
    Gtk::Window window;

    explicit TestScreen(EngineLoader* itsEngine = nullptr);
    ~TestScreen();

    /// Puts the widget into the window and waits until the window is drawn and has the focus.
    void show(Gtk::Widget& widget);
    /// Waits until everything that changed in the window is drawn.
    void settle();
    /// The same for another window.
    static void settle(Gtk::Window& window);
};

} // namespace tessaro::test
