#pragma once

#include "Platform/GHandle.h"
#include "support/TempFolder.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tessaro::test {

/// The real program, started on folders of its own.
class Program {
public:
    Program();
    /// Ends the program if it still runs.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    const TempFolder& home() const { return home_; }
    std::filesystem::path dataFolder() const { return home_ / "data" / "Tessaro"; }

    /// Writes the settings with which it starts.
    void writeSettings(const std::map<std::string, std::string>& settings) const;
    /// Replaces a variable of its environment, or takes it away.
    void setEnvironment(const std::string& name, const std::optional<std::string>& value);

    void start();
    /// Turns the main loop until the program has ended; its exit code, or nothing when it runs on.
    std::optional<int> waitForExit(std::chrono::milliseconds limit = std::chrono::seconds(20));
    /// The lines of today's log so far.
    std::vector<std::string> logLines() const;

private:
    TempFolder home_;
    GObjectPtr<GSubprocessLauncher> launcher_;
    GObjectPtr<GSubprocess> process_;
};

} // namespace tessaro::test
