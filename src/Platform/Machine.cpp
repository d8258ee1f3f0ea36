#include "Platform/Machine.h"

#include "Platform/FileStore.h"
#include "Platform/GHandle.h"
#include "Platform/Text.h"

#include <sstream>
#include <string_view>

namespace tessaro::machine {

std::string prettyName(const std::filesystem::path& file) {
    constexpr std::string_view assignment = "PRETTY_HOSTNAME=";
    std::istringstream lines(readFile(file).value_or(""));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(assignment))
            continue;
        // The values are quoted as in a shell script.
        const GCharPtr value(g_shell_unquote(line.c_str() + assignment.size(), nullptr));
        return value ? trimWhitespaceAndNewlines(toValidUtf8(value.get())) : std::string();
    }
    return {};
}

std::string hostName() {
    return toValidUtf8(g_get_host_name());
}

} // namespace tessaro::machine
