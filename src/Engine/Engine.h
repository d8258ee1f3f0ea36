#pragma once

#include "Engine/WebSession.h"

#include <filesystem>
#include <string>

namespace tessaro {

/// An embedded browser that the program can be run with. UI thread only.
class Engine {
public:
    virtual ~Engine() = default;

    /// What it calls itself, with its version.
    virtual std::string name() const = 0;
    /// What it can decode of sound and moving pictures on this system: names with commas between
    /// them, such as "H.264, AAC, Opus". Takes some hundred milliseconds at first. Any thread.
    virtual std::string decodableMedia() const = 0;
    /// Whether it can lock its web processes into their sandbox on this system. Ask before each
    /// view is made. Takes some ten milliseconds. Any thread.
    virtual bool worksHere() const = 0;
    /// Makes the folders, readable by their owner only, where they are missing. The session lives
    /// as long as the engine, so that session cookies do as well.
    virtual WebSession& makeSession(
        const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder) = 0;
};

} // namespace tessaro
