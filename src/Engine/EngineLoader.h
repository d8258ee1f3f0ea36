#pragma once

#include "Engine/Engine.h"

#include "Platform/Lifetime.h"
#include "Platform/ScopedConnection.h"
#include "Platform/Task.h"

#include <sigc++/signal.h>

#include <filesystem>
#include <functional>
#include <optional>

namespace tessaro {

/// Where the engine's module lies: in the build tree beside the program, otherwise where it was
/// installed, seen from the program. Any thread.
std::filesystem::path engineModule();

/// Loads the engine from its module. It lives as long as the process. Null, with a warning on the
/// standard error output, when the module is missing, does not load, or was built from another
/// interface than the program. Takes some hundred milliseconds. Any thread.
Engine* loadEngine(const std::filesystem::path& module);

/// The way to the engine, which is loaded on a thread of its own and not before somebody asks: it
/// takes as long as all that the window needs for its first frame. UI thread only.
class EngineLoader {
public:
    /// @param load  yields the engine or null; called once, on another thread
    explicit EngineLoader(std::function<Engine*()> load);
    /// With an engine that is there.
    explicit EngineLoader(Engine& engine);

    /// Begins to load it, unless that has begun.
    void load();
    /// The same, and calls `loaded` with the engine, or with null where it cannot be had: at once
    /// when that is known already, else later unless the result is dropped first.
    [[nodiscard]] ScopedConnection whenLoaded(std::function<void(Engine*)> loaded);

private:
    Task<void> loadInBackground();

    const std::function<Engine*()> load_;
    bool isLoading_ = false;
    std::optional<Engine*> engine_; ///< Once loading has ended.
    sigc::signal<void(Engine*)> loaded_;
    Lifetime lifetime_;
};

} // namespace tessaro
