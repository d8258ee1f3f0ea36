#pragma once

#include "support/TempFolder.h"

#include <cstdlib>

namespace tessaro::bench {

/// Private folders for the program and its peers. The user's own folders are not touched.
class Home {
public:
    Home() {
        setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
        setenv("XDG_CACHE_HOME", (folder_ / "cache").c_str(), 1);
    }

private:
    test::TempFolder folder_;
};

} // namespace tessaro::bench
