#pragma once

#include "support/ProcessTree.h"

namespace tessaro::test {

/// The web processes that this program started, as the kernel knows them.
inline std::vector<int> webProcesses() {
    std::vector<int> found;
    for (const auto& process : processTree()) {
        // The sandbox's own processes have the program among their arguments.
        const std::string program = process.commandLine.c_str(); // Up to the first zero byte.
        if (program.ends_with("/WebKitWebProcess"))
            found.push_back(process.id);
    }
    return found;
}

} // namespace tessaro::test
