#pragma once

#include "Platform/GHandle.h"

#include <chrono>
#include <filesystem>
#include <vector>

namespace tessaro::demo {

/// A program under the walker's eyes, as a process of its own. Ended with this object.
class Program {
public:
    /// Starts it with the walker's environment; check isRunning().
    /// @param output  takes what it prints
    Program(
        const std::filesystem::path& binary, const std::filesystem::path& output,
        std::vector<const char*> arguments = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isRunning() const;
    int processId() const;
    /// Waits for the program to end by itself. False when it still runs after the limit, or when
    /// its status is not 0.
    bool endsWell(std::chrono::seconds limit);

private:
    GObjectPtr<GSubprocess> process_;
};

} // namespace tessaro::demo
