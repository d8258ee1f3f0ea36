#pragma once

#include "Engine/EngineLoader.h"

#include "Views/Shell/InfoWindow.h"

namespace tessaro {

/// Shows the program's name, version, engine, licence and data folder.
class AboutWindow : public InfoWindow {
public:
    explicit AboutWindow(EngineLoader& engine);

private:
    ScopedConnection engineLoaded_;
};

} // namespace tessaro
