#include "Services/DeviceIdentity.h"

#include "Platform/Uuid.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <thread>
#include <vector>

using namespace tessaro;

TEST(DeviceIdentity, IsARememberedRandomIdentifierWhereTheMachineHasNone) {
    for (const char* content : {"\n", "uninitialized\n", "\xFF\xFE\n"}) {
        const test::TempFolder temp;
        std::ofstream(temp / "machine-id") << content;
        SettingsStore settings(temp / "settings.ini");
        const DeviceIdentity device(settings, temp / "machine-id");

        // Callers that ask at the same time get the same identity.
        std::vector<std::string> answers(8);
        std::vector<std::thread> callers;
        for (auto& answer : answers)
            callers.emplace_back([&] { answer = device.getDeviceUUID(); });
        for (auto& caller : callers)
            caller.join();
        EXPECT_EQ(std::set(answers.begin(), answers.end()).size(), 1U);
        EXPECT_TRUE(Uuid::parse(answers[0])) << answers[0];
        SettingsStore nextRun(temp / "settings.ini");
        EXPECT_EQ(DeviceIdentity(nextRun, temp / "missing").getDeviceUUID(), answers[0]);
    }
}

TEST(Machine, ReadsTheNameThatTheUserGaveThisComputer) {
    const test::TempFolder temp;
    const auto nameIn = [&](const char* information) {
        std::ofstream(temp / "machine-info") << information;
        return machine::prettyName(temp / "machine-info");
    };
    EXPECT_EQ(nameIn("CHASSIS=laptop\nPRETTY_HOSTNAME=\"Máy của Lan\"\n"), "Máy của Lan");
    EXPECT_EQ(nameIn("PRETTY_HOSTNAME=\"open\n"), "");
    EXPECT_EQ(nameIn("CHASSIS=laptop\n"), "");
    EXPECT_EQ(machine::prettyName(temp / "missing"), "");
    EXPECT_FALSE(machine::hostName().empty());
}
