#include <gmock/gmock.h>

#include <cstdlib>

/// Lets GLib keep settings in memory. Otherwise it would ask the session bus for the user's. That
/// connection lasts as long as the process, so no later test could have a bus of its own.
int main(int argc, char** argv) {
    setenv("GSETTINGS_BACKEND", "memory", 1);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
