#pragma once

#include <sys/types.h>

#include <vector>

namespace tessaro::test {

/// The web processes that this program started, as the kernel knows them.
std::vector<pid_t> webProcesses();

} // namespace tessaro::test
