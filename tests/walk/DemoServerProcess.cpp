#include "DemoServerProcess.h"

#include <stdexcept>

namespace tessaro::test {

DemoServerProcess::DemoServerProcess(const std::string& program)
    : process_(GObjectPtr<GSubprocess>::adopt(g_subprocess_new(
          G_SUBPROCESS_FLAGS_STDOUT_PIPE, nullptr, program.c_str(), "--port", "0", nullptr))) {
    if (!process_)
        throw std::runtime_error("the demo server does not start");
    // It says where it listens in its first line, and nothing more.
    std::string line(200, '\0');
    const auto size = g_input_stream_read(
        g_subprocess_get_stdout_pipe(process_.get()), line.data(), line.size(), nullptr, nullptr);
    line.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    const auto begin = line.find("http://"), end = line.find('\n');
    if (begin == std::string::npos || end == std::string::npos)
        throw std::runtime_error("the demo server does not listen");
    origin_ = line.substr(begin, end - begin);
}

DemoServerProcess::~DemoServerProcess() {
    g_subprocess_force_exit(process_.get());
}

} // namespace tessaro::test
