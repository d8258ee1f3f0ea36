#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace tessaro::test {

/// Sets environment variables of this process and restores them at the end of its scope. Other
/// threads must not read the environment meanwhile.
class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment() {
        for (const auto& [name, value] : before_)
            assign(name, value);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    /// Sets the variable, or removes it when there is no value.
    void set(const std::string& name, const std::optional<std::string>& value) {
        const char* present = getenv(name.c_str());
        before_.emplace(name, present ? std::optional<std::string>(present) : std::nullopt);
        assign(name, value);
    }

private:
    static void assign(const std::string& name, const std::optional<std::string>& value) {
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }

    std::map<std::string, std::optional<std::string>> before_;
};

} // namespace tessaro::test
