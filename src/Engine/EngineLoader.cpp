#include "Engine/EngineLoader.h"

#include "Platform/Background.h"

#include <dlfcn.h>

namespace tessaro {

std::filesystem::path engineModule() {
    std::error_code ignored;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    const auto beside = program / "engine/webkit.so";
    return std::filesystem::exists(beside, ignored) ? beside
                                                    : program / TESSARO_ENGINE_FOLDER / "webkit.so";
}

Engine* loadEngine(const std::filesystem::path& module) {
    // All at once, so that what is missing is missed here and not in the middle of a page. The
    // entry's name tells the interface that the module was built from.
    void* const library = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = library ? dlsym(library, TESSARO_ENGINE_ENTRY) : nullptr;
    if (!entry) {
        g_warning("The browser's engine does not load: %s", dlerror());
        return nullptr;
    }
    return reinterpret_cast<Engine* (*)()>(entry)();
}

EngineLoader::EngineLoader(std::function<Engine*()> load) : load_(std::move(load)) {}

EngineLoader::EngineLoader(Engine& engine) : engine_(&engine) {}

void EngineLoader::load() {
    if (!engine_ && !std::exchange(isLoading_, true))
        loadInBackground().detach();
}

ScopedConnection EngineLoader::whenLoaded(std::function<void(Engine*)> loaded) {
    if (engine_) {
        loaded(*engine_);
        return {};
    }
    load();
    return ScopedConnection(loaded_.connect(std::move(loaded)));
}

Task<void> EngineLoader::loadInBackground() {
    const auto watch = lifetime_.watch();
    Engine* const engine = co_await inBackground(load_);
    if (!watch)
        co_return;
    engine_ = engine;
    loaded_.emit(engine);
}

} // namespace tessaro
