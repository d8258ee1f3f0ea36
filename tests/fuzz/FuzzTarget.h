#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// The entry of every fuzz target (LLVM libFuzzer). It must accept any bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tessaro::test {

inline std::string_view asText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process unless `condition` holds; the fuzzer keeps the input.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace tessaro::test
