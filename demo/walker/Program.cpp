#include "Program.h"

namespace tessaro::demo {

Program::Program(
    const std::filesystem::path& binary, const std::filesystem::path& output,
    std::vector<const char*> arguments) {
    const auto launcher = GObjectPtr<GSubprocessLauncher>::adopt(
        g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_STDERR_MERGE));
    g_subprocess_launcher_set_stdout_file_path(launcher.get(), output.c_str());
    arguments.insert(arguments.begin(), binary.c_str());
    arguments.push_back(nullptr);
    process_ = GObjectPtr<GSubprocess>::adopt(
        g_subprocess_launcher_spawnv(launcher.get(), arguments.data(), GErrorSlot().out()));
}

Program::~Program() {
    if (process_)
        g_subprocess_force_exit(process_.get());
}

bool Program::isRunning() const {
    return process_ && g_subprocess_get_identifier(process_.get());
}

int Program::processId() const {
    const char* identifier = process_ ? g_subprocess_get_identifier(process_.get()) : nullptr;
    return identifier ? std::stoi(identifier) : 0;
}

bool Program::endsWell(std::chrono::seconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (isRunning() && std::chrono::steady_clock::now() < deadline)
        g_main_context_iteration(nullptr, FALSE);
    return process_ && !isRunning() && g_subprocess_get_successful(process_.get());
}

} // namespace tessaro::demo
