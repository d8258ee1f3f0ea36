#include "support/Gtk/TestScreen.h"

namespace tessaro::test {

TestScreen::TestScreen(EngineLoader* itsEngine) : ScreenWorld(itsEngine) {
    endpoints.graphApiOrigin = endpoints.inboxOrigin = "http://127.0.0.1:9"; // Nobody listens.
    context.makeGraphClient = graph.factory();
    theme.setAppearanceMode("light");
}

TestScreen::~TestScreen() {
    window.unset_child();
}

void TestScreen::show(Gtk::Widget& widget) {
    window.set_default_size(900, 560);
    window.set_child(widget);
    window.present();
    settle();
    runUntil([this] { return window.is_active(); });
}

void TestScreen::settle() {
    settle(window);
}

void TestScreen::settle(Gtk::Window& shown) {
    runUntil([&] { return shown.get_mapped() && shown.get_width() > 0; });
    // The first frame lays out what changed; after the second it is drawn.
    int frames = 0;
    const auto tick = shown.add_tick_callback([&](const auto&) { return ++frames < 3; });
    if (!runUntil([&] { return frames >= 3; }))
        shown.remove_tick_callback(tick);
    runPending();
}

} // namespace tessaro::test
