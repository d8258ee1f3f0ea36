#pragma once

#include "Platform/GHandle.h"

#include <string>

namespace tessaro::test {

/// The demo server as a process of its own, which the walk can ask while it waits.
class DemoServerProcess {
public:
    /// Returns once it listens.
    explicit DemoServerProcess(const std::string& program);
    ~DemoServerProcess();
    DemoServerProcess(const DemoServerProcess&) = delete;
    DemoServerProcess& operator=(const DemoServerProcess&) = delete;

    const std::string& origin() const { return origin_; }

private:
    GObjectPtr<GSubprocess> process_;
    std::string origin_;
};

} // namespace tessaro::test
