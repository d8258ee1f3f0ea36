#include "Services/SupportClient.h"
#include "support/HostileServers.h"
#include "support/MainLoop.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessaro;
using namespace tessaro::test;

namespace {

/// An object that contents both requests of the client.
constexpr const char* goodBody = R"({"version":"2.0","url":"javascript:x",
                     "notes" : "<b>\u202e", "success" : true
})";

class HostileSupportServer : public testing::TestWithParam<HostileServer> {};

INSTANTIATE_TEST_SUITE_P(
    That, HostileSupportServer, testing::ValuesIn(hostileServers(goodBody)), hostileName);

} // namespace

TEST_P(HostileSupportServer, IsEndedInBoundedTimeAndMemoryWithALineInTheLog) {
    StoreWorld world;
    LoopbackServer server;
    SupportClient client(
        world.settings, GetParam().start(server), world.device, world.logger, hostileOptions());
    const HostileBounds bounds;
    const auto check = [&](const std::string& path, const auto& answer) {
        EXPECT_EQ(answer.has_value(), GetParam().answers) << path;
        if (answer)
            return;
        EXPECT_FALSE(answer.error().message.empty()) << path;
        EXPECT_THAT(
            world.loggedLines(), testing::ContainsRegex("\\[ERROR\\] SupportClient: .*" + path));
    };
    const auto info = await(client.checkUpdate());
    check("/api/update/check", info);
    if (info) {
        EXPECT_EQ(*info, (UpdateInfo{"2.0", "javascript:x", "<b>\u202e"}));
    }
    check("/api/support/upload-log", await(client.uploadLog("a.log", std::string(1 << 20, 'x'))));
}
