#include "Services/SupportClient.h"
#include "support/HostileServers.h"
#include "support/MainLoop.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;

namespace {

/// An object that contents both requests of the client.
constexpr const char* goodBody =
    R"({"version":"2.0","url":"https://a.example/","notes":"Mới","success":true})";

class HostileSupportServer : public testing::TestWithParam<HostileServer> {
protected:
    HostileSupportServer() {
        if (GetParam().behave)
            server_.handle("*", GetParam().behave);
    }

    template <typename Answer>
    void check(const std::string& path, const Result<Answer>& answer) {
        EXPECT_EQ(answer.has_value(), GetParam().answers) << path;
        if (answer)
            return;
        EXPECT_FALSE(answer.error().message.empty()) << path;
        world_.logger.flush(10s);
        EXPECT_THAT(
            world_.logger.readCurrentLog(),
            testing::ContainsRegex("\\[ERROR\\] SupportClient: .*" + path));
    }

    LoopbackServer server_;
    StoreWorld world_;
    SupportClient client_{
        world_.settings,
        // Another server's address, for nobody is there any more.
        GetParam().behave ? server_.origin() : LoopbackServer().origin(), world_.device,
        world_.logger, hostileOptions()};
};

INSTANTIATE_TEST_SUITE_P(
    That, HostileSupportServer, testing::ValuesIn(hostileServers(goodBody)), hostileName);

} // namespace

TEST_P(HostileSupportServer, IsEndedInBoundedTimeAndMemoryWithALineInTheLog) {
    const HostileBounds bounds;
    const auto info = await(client_.checkUpdate());
    check("/api/update/check", info);
    if (info) {
        EXPECT_EQ(*info, (UpdateInfo{"2.0", "https://a.example/", "Mới"}));
    }
    check("/api/support/upload-log", await(client_.uploadLog("a.log", std::string(1 << 20, 'x'))));
}

TEST(HostileSupport, StrangeTextsOfAnUpdateAreKeptAsTexts) {
    StoreWorld world;
    LoopbackServer server;
    SupportClient client(
        world.settings, server.origin(), world.device, world.logger, hostileOptions());
    const UpdateInfo strange{
        "../../2", "javascript:alert(1)", "<b>&amp;\u202e\u2066" + std::string(1 << 19, 'n')};
    server.answer(
        "/api/update/check",
        nlohmann::json{{"version", strange.version}, {"url", strange.url}, {"notes", strange.notes}}
            .dump());
    EXPECT_EQ(await(client.checkUpdate()).value(), strange);
}
