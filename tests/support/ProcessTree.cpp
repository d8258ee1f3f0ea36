#include "support/ProcessTree.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tessaro::test {

namespace {

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator(stream), {}};
}

/// The second number behind the name, which stands in brackets and may hold anything.
int parentOf(const std::string& status) {
    const auto end = status.rfind(')');
    return end == std::string::npos ? 0 : std::stoi(status.substr(end + std::size(") S ") - 1));
}

} // namespace

std::vector<ProcessView> processTree() {
    std::vector<ProcessView> all;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const auto name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") == std::string::npos)
            all.push_back(
                {std::stoi(name), parentOf(contents(entry.path() / "stat")),
                 contents(entry.path() / "cmdline"), contents(entry.path() / "environ")});
    }
    std::vector<ProcessView> tree;
    std::vector<int> parents{getpid()};
    while (!parents.empty()) {
        const int parent = parents.back();
        parents.pop_back();
        for (const auto& process : all)
            if (process.parent == parent) {
                tree.push_back(process);
                parents.push_back(process.id);
            }
    }
    return tree;
}

} // namespace tessaro::test
