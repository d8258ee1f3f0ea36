#pragma once

#include "Engine/EngineLoader.h"

#include "support/MainLoop.h"

namespace tessaro::test {

/// The program's engine, which is loaded once for all tests of the process.
inline EngineLoader& realEngine() {
    static EngineLoader loader([] { return loadEngine(TESSARO_ENGINE_MODULE); });
    return loader;
}

/// The same, loaded; null when it cannot be.
inline Engine* loadedEngine() {
    std::optional<Engine*> engine;
    const auto loaded = realEngine().whenLoaded([&](Engine* its) { engine = its; });
    runUntil([&] { return engine.has_value(); });
    return engine.value_or(nullptr);
}

} // namespace tessaro::test
