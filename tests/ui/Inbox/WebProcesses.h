#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tessaro::test {

/// The web processes that this program started, as the kernel knows them.
std::vector<pid_t> webProcesses();

/// The value of a line of /proc/PID/status, such as "Seccomp".
std::string statusOf(pid_t process, const std::string& name);

/// Which namespace of that kind ("user", "pid") the process lives in.
std::string namespaceOf(pid_t process, const std::string& kind);

} // namespace tessaro::test
