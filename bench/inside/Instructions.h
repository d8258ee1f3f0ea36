#pragma once

#include <valgrind/callgrind.h>

namespace tessaro::bench {

/// While it exists callgrind counts the instructions of this thread. Nothing where no callgrind
/// runs.
class Instructions {
public:
    Instructions() {
        CALLGRIND_START_INSTRUMENTATION; // What was prepared until now has run at full speed.
        CALLGRIND_TOGGLE_COLLECT;
    }
    ~Instructions() { CALLGRIND_TOGGLE_COLLECT; }
    Instructions(const Instructions&) = delete;
    Instructions& operator=(const Instructions&) = delete;
};

} // namespace tessaro::bench
