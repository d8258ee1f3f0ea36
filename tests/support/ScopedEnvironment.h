#pragma once

#include <map>
#include <optional>
#include <string>

namespace tessaro::test {

/// Environment variables of this process, put back as they were when it goes out of scope. For
/// tests whose other threads do not read the environment.
class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    /// Sets the variable, or takes it away when there is no value.
    void set(const std::string& name, const std::optional<std::string>& value);

private:
    std::map<std::string, std::optional<std::string>> before_;
};

} // namespace tessaro::test
