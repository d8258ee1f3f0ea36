#pragma once

#include "Steps.h"

#include "support/ScopedEnvironment.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace tessaro::test {

/// The real program in private folders, a demo server for everything that it talks to, and a walk
/// through the program. A test that fails prints the program's output.
class WalkTest : public testing::Test {
protected:
    WalkTest();
    ~WalkTest() override;

    /// The origin at which the demo server listens.
    std::string readOrigin() const;
    /// Writes these settings, and the addresses of the demo server, for the next start.
    void writeSettings(std::map<std::string, std::string> settings = {}) const;
    /// Starts the program and puts off the update that it is offered.
    void startProgram();
    /// Everything that the program has logged so far.
    std::string logs() const;

    TempFolder home_;
    std::filesystem::path data_ = home_ / "data" / "Tessaro";
    std::filesystem::path settings_ = home_ / "config" / "Tessaro" / "settings.ini";
    demo::Program server_{TESSARO_DEMO_SERVER, home_ / "server.txt", {"--port", "0"}};
    const std::string origin_ = readOrigin();
    ScopedEnvironment environment_;
    demo::Walk walk_{
        {.program = TESSARO_PROGRAM,
         .data = data_,
         .settings = settings_,
         .pictures = home_.path(),
         .opened = home_ / "opened.txt",
         .origin = origin_}};
};

} // namespace tessaro::test
