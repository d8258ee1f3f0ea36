#pragma once

#include "Platform/Gtk/AdwAppearance.h"
#include "Views/ScreenContext.h"
#include "Views/ThemeStyle.h"
#include "support/FakeGraph.h"
#include "support/StoreWorld.h"

#include <gtkmm/window.h>

namespace tessaro::test {

/// Keeps what the program asked of the desktop.
struct RecordingDesktop final : Desktop {
    std::vector<std::string> opened;
    std::string clipboard;

    void openAddress(const std::string& address) override { opened.push_back(address); }
    void copyText(const std::string& text) override { clipboard = text; }
};

/// Answers every alert with the button of that index.
struct ScriptedModals final : Modals {
    std::vector<ModalAlert> shown;
    std::size_t answer = 0;

    void show(ModalAlert alert, std::function<void(std::size_t)> answered) override {
        shown.push_back(std::move(alert));
        answered(answer);
    }
};

/// Everything that a screen needs, over real stores in a folder of its own, and a real window to
/// show it in. The network is a FakeGraph; pictures from the web do not load.
class TestScreen : public StoreWorld {
public:
    FakeGraph graph;
    RecordingDesktop desktop;
    ScriptedModals modals;
    AdwAppearance appearance;
    ThemeManager theme{settings, appearance, notifications, clock};
    ThemeStyle style{theme};
    ImageLoader images;
    Endpoints endpoints{"http://127.0.0.1:9", "http://127.0.0.1:9"};
    ScreenContext context{theme, notifications, clock,  desktop,   modals,
                          store, device,        images, endpoints, graph.factory()};
    Gtk::Window window;

    TestScreen();
    ~TestScreen();

    /// Puts the widget into the window and waits until it is on screen and has the focus.
    void show(Gtk::Widget& widget);
    /// Waits until the window was drawn with everything that changed.
    void settle();
    /// The same for a window in front of it.
    static void settle(Gtk::Window& window);
};

} // namespace tessaro::test
