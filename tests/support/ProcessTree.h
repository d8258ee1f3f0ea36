#pragma once

#include <string>
#include <vector>

namespace tessaro::test {

/// A process as everyone who may look sees it (proc(5)).
struct ProcessView {
    int id;
    std::string commandLine;
    std::string environment;
};

/// The processes that this one has started, and those that they have started.
std::vector<ProcessView> processTree();

} // namespace tessaro::test
