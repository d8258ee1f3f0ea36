#include "ui/Inbox/WebProcesses.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace tessaro::test {

namespace {

std::filesystem::path folderOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

bool descendsFromHere(pid_t process) {
    while (process > 1) {
        if (process == getpid())
            return true;
        const std::string parent = statusOf(process, "PPid");
        process = parent.empty() ? 0 : std::stoi(parent);
    }
    return false;
}

} // namespace

std::vector<pid_t> webProcesses() {
    std::vector<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos)
            continue;
        const pid_t process = std::stoi(name);
        // The kernel cuts names after fifteen characters.
        if (statusOf(process, "Name") == "WebKitWebProces" && descendsFromHere(process))
            found.push_back(process);
    }
    return found;
}

std::string statusOf(pid_t process, const std::string& name) {
    std::ifstream file(folderOf(process) / "status");
    for (std::string line; std::getline(file, line);)
        if (line.rfind(name + ":\t", 0) == 0)
            return line.substr(name.size() + 2);
    return "";
}

std::string namespaceOf(pid_t process, const std::string& kind) {
    std::error_code gone;
    return std::filesystem::read_symlink(folderOf(process) / "ns" / kind, gone);
}

} // namespace tessaro::test
