#include "support/ProcessTree.h"

#include "Platform/FileStore.h"

#include <fstream>

namespace tessaro::test {

namespace {

void addChildrenOf(const std::filesystem::path& process, std::vector<ProcessView>& tree) {
    std::error_code ended;
    for (const auto& thread : std::filesystem::directory_iterator(process / "task", ended)) {
        std::ifstream children(thread.path() / "children");
        for (std::string id; children >> id;) {
            const auto child = std::filesystem::path("/proc") / id;
            tree.push_back(
                {std::stoi(id), readFile(child / "cmdline").value_or(""),
                 readFile(child / "environ").value_or("")});
            addChildrenOf(child, tree);
        }
    }
}

} // namespace

std::vector<ProcessView> processTree() {
    std::vector<ProcessView> tree;
    addChildrenOf("/proc/self", tree);
    return tree;
}

} // namespace tessaro::test
