#pragma once

#include "support/ProcessTree.h"

namespace tessaro::test {

/// The web processes that this program has started.
inline std::vector<int> webProcesses() {
    std::vector<int> found;
    for (const auto& process : processTree()) {
        // The sandbox's own processes name the program in their arguments.
        const std::string program = process.commandLine.c_str(); // Ends at the first zero byte.
        if (program.ends_with("/WebKitWebProcess"))
            found.push_back(process.id);
    }
    return found;
}

} // namespace tessaro::test
