#pragma once

#include "Engine/EngineLoader.h"

#include "support/MainLoop.h"

namespace tessaro::test {

/// The program's engine. It is loaded once for the whole process.
inline EngineLoader& realEngine() {
    static EngineLoader loader([] { return loadEngine(TESSARO_ENGINE_MODULE); });
    return loader;
}

/// Waits until that engine is loaded; null when it cannot be.
inline Engine* loadedEngine() {
    std::optional<Engine*> engine;
    const auto loaded = realEngine().whenLoaded([&](Engine* its) { engine = its; });
    runUntil([&] { return engine.has_value(); });
    return engine.value_or(nullptr);
}

} // namespace tessaro::test
