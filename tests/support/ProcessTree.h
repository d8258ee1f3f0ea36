#pragma once

#include "Platform/FileStore.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tessaro::test {

/// A process as other programs of the user see it (proc(5)).
struct ProcessView {
    int id;
    std::string commandLine;
    std::string environment;
};

/// The processes that this one has started, and those that these have started.
inline std::vector<ProcessView> processTree(const std::filesystem::path& root = "/proc/self") {
    std::vector<ProcessView> tree;
    std::error_code ended;
    for (const auto& thread : std::filesystem::directory_iterator(root / "task", ended)) {
        std::ifstream children(thread.path() / "children");
        for (std::string id; children >> id;) {
            const auto child = std::filesystem::path("/proc") / id;
            tree.push_back(
                {std::stoi(id), readFile(child / "cmdline").value_or(""),
                 readFile(child / "environ").value_or("")});
            std::ranges::move(processTree(child), std::back_inserter(tree));
        }
    }
    return tree;
}

} // namespace tessaro::test
