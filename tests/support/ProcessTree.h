#pragma once

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
std::vector<ProcessView> processTree();

} // namespace tessaro::test
