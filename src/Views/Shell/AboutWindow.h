#pragma once

#include "Engine/EngineLoader.h"

#include "Views/Shell/InfoWindow.h"

namespace tessaro {

/// Says what the program is, in which version, on which engine, and where its data lie.
class AboutWindow : public InfoWindow {
public:
    AboutWindow(Gtk::Window& parent, EngineLoader& engine);

private:
    ScopedConnection engineLoaded_;
};

} // namespace tessaro
