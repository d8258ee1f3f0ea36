#include "support/ScopedEnvironment.h"

#include <cstdlib>

namespace tessaro::test {

namespace {

void assign(const std::string& name, const std::optional<std::string>& value) {
    if (value)
        setenv(name.c_str(), value->c_str(), 1);
    else
        unsetenv(name.c_str());
}

} // namespace

ScopedEnvironment::~ScopedEnvironment() {
    for (const auto& [name, value] : before_)
        assign(name, value);
}

void ScopedEnvironment::set(const std::string& name, const std::optional<std::string>& value) {
    const char* present = getenv(name.c_str());
    before_.emplace(name, present ? std::optional<std::string>(present) : std::nullopt);
    assign(name, value);
}

} // namespace tessaro::test
