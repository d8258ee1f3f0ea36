#pragma once

// First, because the display's header makes macros of words of this one.
// clang-format off
#include <gtest/gtest.h>
// clang-format on

#include "DemoServerProcess.h"
#include "Walk.h"

#include "support/ScopedEnvironment.h"
#include "support/TempFolder.h"

#include <string>

namespace tessaro::test {

/// The real program on folders of its own, with a demo server for everything that it talks to, and
/// a walk through it. Says what the program printed when the test fails.
class WalkTest : public testing::Test {
protected:
    WalkTest();
    ~WalkTest() override;

    /// Starts the program and puts off the update that it is offered.
    void startProgram();
    /// Opens the sheet for a new account and gives it the name.
    void beginAccount(const std::string& name);
    /// Adds the account of the sheet, which is gone after it.
    void finishAccount();

    TempFolder home_;
    std::filesystem::path data_ = home_ / "data" / "Tessaro";
    std::filesystem::path settings_ = home_ / "config" / "Tessaro" / "settings.ini";
    DemoServerProcess server_{TESSARO_DEMO_SERVER};
    ScopedEnvironment environment_;
    demo::Walk walk_{
        {.program = TESSARO_PROGRAM,
         .data = data_,
         .settings = settings_,
         .pictures = home_.path(),
         .opened = home_ / "opened.txt",
         .origin = server_.origin()}};
};

} // namespace tessaro::test
