#include "support/TempFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace tessaro::test {

TempFolder::TempFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "tessaro-test-XXXXXX";
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("cannot make a temporary folder");
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace tessaro::test
