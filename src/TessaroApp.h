#pragma once

namespace tessaro {

/// The application: makes every service, opens the one window and runs the main loop.
class TessaroApp {
public:
    int run(int argc, char** argv);
};

} // namespace tessaro
