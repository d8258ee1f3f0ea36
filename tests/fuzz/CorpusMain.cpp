#include "FuzzTarget.h"

#include "Platform/FileStore.h"

#include <cstdio>
#include <filesystem>

/// Runs a fuzz target once over every file of the folders given: the check that what was found once
/// stays mended, with any compiler.
int main(int count, char** arguments) {
    int inputs = 0;
    for (int i = 1; i < count; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            const auto bytes = tessaro::readFile(entry.path()).value();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++inputs;
        }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
