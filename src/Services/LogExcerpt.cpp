#include "Services/LogExcerpt.h"

#include "Platform/Text.h"

namespace tessaro {

namespace {

constexpr std::size_t characterLimit = 50'000;
constexpr int keptLines = 200;

/// Where the last `keptLines` lines begin. A line feed at the very end opens one more, empty line.
std::size_t startOfKeptLines(const std::string& text) {
    auto lineFeed = text.size();
    for (int line = 0; line < keptLines; ++line) {
        lineFeed = lineFeed > 0 ? text.rfind('\n', lineFeed - 1) : std::string::npos;
        if (lineFeed == std::string::npos)
            return 0;
    }
    return lineFeed + 1;
}

} // namespace

std::string logExcerpt(const std::string& log) {
    const auto text = toValidUtf8(log);
    if (characterCount(text) <= characterLimit)
        return text;
    return "[...truncated...]\n" + text.substr(startOfKeptLines(text));
}

} // namespace tessaro
