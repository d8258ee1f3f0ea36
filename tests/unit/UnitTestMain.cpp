#include <gmock/gmock.h>

#include <cstdlib>

/// The libraries keep their settings in memory. They would ask the session bus for the user's, and
/// that connection lasts as long as the process: no later test could have a bus of its own.
int main(int argc, char** argv) {
    setenv("GSETTINGS_BACKEND", "memory", 1);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
