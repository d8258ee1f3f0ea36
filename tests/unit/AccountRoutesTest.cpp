#include "Services/AccountRoutes.h"

#include "support/GraphWorld.h"

#include <gmock/gmock.h>

using namespace tessaro;
using namespace tessaro::test;
using testing::ElementsAre, testing::SizeIs;

namespace {

class AccountRoutesTest : public testing::Test {
protected:
    Task<Result<HttpResponse>> picture(const std::optional<Account>& owner, int number) {
        return world.routes.of(owner)->pictures.fetch(addressOf(number));
    }
    std::string addressOf(int number) { return world.baseUrl + "/" + std::to_string(number); }
    /// Asks for that many pictures and waits until as many requests as allowed are under way.
    std::vector<Task<Result<HttpResponse>>>
    askFor(int count, const std::optional<Account>& owner, LoopbackServer& by) {
        std::vector<Task<Result<HttpResponse>>> asked;
        for (int number = 0; number < count; ++number)
            asked.push_back(picture(owner, number));
        EXPECT_TRUE(runUntil([&] { return by.requests().size() == 6; }));
        return asked;
    }
    static bool waitForEnd(const std::vector<Task<Result<HttpResponse>>>& tasks) {
        return runUntil([&] {
            return std::ranges::all_of(tasks, [](const auto& task) { return task.isDone(); });
        });
    }

    GraphWorld world;
    LoopbackServer proxy;
    const Account proxied = proxiedBy(proxy.port());
};

} // namespace

TEST_F(AccountRoutesTest, KeepAConnectionOpenFromOneClientToTheNext) {
    for (LoopbackServer* server : {&world.server, &proxy}) {
        server->keepConnections();
        server->answer("*", R"({"id":"7","name":"Trang"})");
    }
    const auto askTwice = [&](const std::optional<Account>& owner) {
        for (const char* token : {"token one", "token two"})
            EXPECT_TRUE(await(world.makeClient(SecretText(token), owner)->fetchPageInfo()));
    };
    askTwice(proxied);
    EXPECT_EQ(world.server.connectionCount(), 0u);
    askTwice(std::nullopt);
    for (LoopbackServer* server : {&world.server, &proxy}) {
        EXPECT_THAT(server->requests(), SizeIs(2));
        EXPECT_EQ(server->connectionCount(), 1u);
    }
}

TEST_F(AccountRoutesTest, AProxyThatHangsHoldsUpNeitherOtherRoutesNorWhatAPersonAsksFor) {
    proxy.hold();
    proxy.answer(world.baseUrl + "/me", R"({"id":"7","name":"Trang"})");
    world.server.answer("*", "x");
    const auto hanging = askFor(20, proxied, proxy);
    EXPECT_TRUE(await(picture(std::nullopt, 1)));
    EXPECT_TRUE(await(world.makeClient(SecretText("a token"), proxied)->fetchPageInfo()));
    EXPECT_THAT(proxy.requests(), SizeIs(7));
    proxy.release();
    EXPECT_TRUE(waitForEnd(hanging));
    EXPECT_THAT(proxy.requests(), SizeIs(21));
}

TEST_F(AccountRoutesTest, WhatWasAskedForLastComesFirstAndNothingTwice) {
    world.server.hold();
    auto asked = askFor(9, std::nullopt, world.server); // 6, 7 and 8 wait.
    for (const int again : {6, 0})                      // 0 is under way already.
        asked.push_back(picture(std::nullopt, again));
    std::vector<std::string> later;
    for (std::size_t place = 7; place <= 9; ++place) {
        world.server.release(1);
        ASSERT_TRUE(runUntil([&] { return world.server.requests().size() == place; }));
        later.push_back(world.server.requests().back().target);
    }
    EXPECT_THAT(later, ElementsAre("/v25.0/6", "/v25.0/8", "/v25.0/7"));
    world.server.release();
    EXPECT_TRUE(waitForEnd(asked));
    EXPECT_THAT(world.server.requests(), SizeIs(9));
}

TEST_F(AccountRoutesTest, WhoOnlyShowsAPictureIsContentWithWhatOthersGot) {
    auto queue = world.routes.of(std::nullopt)->pictures;
    const auto show = [&] { return await(queue.fetchOnce(addressOf(1))); };
    world.server.answer("*", {500, "", {}});
    EXPECT_EQ(await(queue.fetch(addressOf(1))).value().status, 500u);
    EXPECT_EQ(show()->value().status, 500u);
    EXPECT_THAT(world.server.requests(), SizeIs(1));

    world.server.answer("*", "a picture");
    EXPECT_EQ(await(queue.fetch(addressOf(1))).value().body, "a picture") << "asked for again";
    auto shown = show(); // From here on somebody holds the answer.
    EXPECT_THAT(world.server.requests(), SizeIs(3));
    EXPECT_EQ(show(), shown);
    EXPECT_THAT(world.server.requests(), SizeIs(3));
}
