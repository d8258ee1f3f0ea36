#pragma once

#include <string>

namespace tessaro::test {

/// The text that many times over.
inline std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

} // namespace tessaro::test
