#include "FuzzTarget.h"

#include "Platform/FileStore.h"

#include <cstdio>
#include <filesystem>
#include <string>

/// usage: fuzz_READER FOLDER
///
/// Runs a fuzz target over every file of the folder, so that a fault that was found once does not
/// come back. Needs no fuzzer. When the target breaks, the last file named did it.
int main(int count, char** arguments) {
    if (count != 2)
        return 2;
    int kept = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::puts(entry.path().c_str());
        std::fflush(stdout);
        const auto input = tessaro::readFile(entry.path()).value();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++kept;
    }
    return kept ? 0 : 2;
}
