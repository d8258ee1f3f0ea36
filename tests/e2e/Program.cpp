#include "Program.h"

#include "support/MainLoop.h"

#include <fstream>
#include <stdexcept>

namespace tessaro::test {

Program::Program()
    : launcher_(GObjectPtr<GSubprocessLauncher>::adopt(
          g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_NONE))) {
    for (const auto& [variable, folder] :
         {std::pair("XDG_DATA_HOME", "data"), std::pair("XDG_CONFIG_HOME", "config"),
          std::pair("XDG_CACHE_HOME", "cache")}) {
        std::filesystem::create_directories(home_ / folder);
        setEnvironment(variable, home_ / folder);
    }
}

Program::~Program() {
    if (process_)
        g_subprocess_force_exit(process_.get());
}

void Program::writeSettings(const std::map<std::string, std::string>& settings) const {
    std::filesystem::create_directories(home_ / "config" / "Tessaro");
    std::ofstream file(home_ / "config" / "Tessaro" / "settings.ini");
    file << "[settings]\n";
    for (const auto& [key, value] : settings)
        file << key << "=" << value << "\n";
}

void Program::setEnvironment(const std::string& name, const std::optional<std::string>& value) {
    if (value)
        g_subprocess_launcher_setenv(launcher_.get(), name.c_str(), value->c_str(), TRUE);
    else
        g_subprocess_launcher_unsetenv(launcher_.get(), name.c_str());
}

void Program::start() {
    GErrorSlot error;
    process_ = GObjectPtr<GSubprocess>::adopt(
        g_subprocess_launcher_spawn(launcher_.get(), error.out(), TESSARO_PROGRAM, nullptr));
    if (!process_)
        throw std::runtime_error("cannot start the program: " + error.message());
}

std::optional<int> Program::waitForExit(std::chrono::milliseconds limit) {
    // The identifier is gone once the process was reaped.
    const bool ended =
        runUntil([&] { return !g_subprocess_get_identifier(process_.get()); }, limit);
    if (!ended || !g_subprocess_get_if_exited(process_.get()))
        return std::nullopt;
    return g_subprocess_get_exit_status(process_.get());
}

std::vector<std::string> Program::logLines() const {
    std::vector<std::string> lines;
    std::error_code missing;
    for (const auto& file : std::filesystem::directory_iterator(dataFolder() / "logs", missing)) {
        std::ifstream stream(file.path());
        for (std::string line; std::getline(stream, line);)
            lines.push_back(line);
    }
    return lines;
}

} // namespace tessaro::test
