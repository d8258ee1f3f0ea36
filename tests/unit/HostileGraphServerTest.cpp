#include "Services/TokenRedaction.h"
#include "ViewModels/AddPageFlow.h"
#include "support/GraphWorld.h"
#include "support/HostileServers.h"
#include "support/LongestTurn.h"
#include "support/MainLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int fittingPages = 20'000; // Each of them takes its time.
#else
constexpr int fittingPages = 350'000;
#endif

constexpr const char* marked = "EAAB marked#token/%1";

/// An object that contents every request of the client.
constexpr const char* goodBody = R"({"id":"7","name":"Trang","data":[]})";

/// A world whose server treats its clients like that.
std::unique_ptr<GraphWorld> worldWith(const LoopbackServer::Handler& behave) {
    auto world = std::make_unique<GraphWorld>();
    world->options = hostileOptions();
    if (behave)
        world->server.handle("*", behave);
    else
        world->baseUrl = LoopbackServer().origin(); // Nobody is there any more.
    return world;
}

/// Servers that give the token back in what they say.
std::vector<HostileServer> echoingServers() {
    const auto says = [](std::string head, std::string (*text)(const ReceivedRequest&)) {
        return [=](ServerConnection& connection, const ReceivedRequest& request) {
            const auto body = text(request);
            connection.write(
                head + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body);
        };
    };
    const auto refusal = [](const std::string& message) {
        return R"({"error":{"code":190,"message":"Malformed )" + message + R"( token"}})";
    };
    static const auto refuse = refusal;
    const std::string bad = "HTTP/1.1 400 Bad\r\n";
    return {
        {"echoes the target",
         says(bad, [](const auto& request) { return refuse(request.target); })},
        {"echoes the token", says(bad, [](const auto&) { return refuse(marked); })},
        {"echoes it in lower-case escapes",
         says(bad, [](const auto&) { return refuse("EAAB%20marked%23token%2f%251"); })},
        {"echoes it with every byte escaped",
         says(
             bad,
             [](const auto&) {
                 std::string escaped;
                 for (const char byte : std::string(marked)) {
                     char text[4];
                     g_snprintf(text, sizeof text, "%%%02x", static_cast<unsigned>(byte));
                     escaped += text;
                 }
                 return refuse(escaped);
             })},
        {"echoes it in a page",
         says("HTTP/1.1 500 Oh\r\n", [](const auto& request) { return request.target; })},
        {"echoes it for JSON", says(
                                   "HTTP/1.1 200 OK\r\n",
                                   [](const auto& request) {
                                       return "{\"id\":\"" + request.target + "\",\"data\":\"" +
                                              marked + "\"}";
                                   })},
        {"echoes it instead of HTTP",
         [](ServerConnection& connection, const ReceivedRequest& request) {
             connection.write("HTTP/" + request.target + "\r\n\r\n");
         }},
        {"redirects with it to nobody",
         [](ServerConnection& connection, const ReceivedRequest& request) {
             connection.write(
                 "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: http://127.0.0.1:1" +
                 request.target + "\r\n\r\n");
         }},
    };
}

/// Walks every road of the program on which the client may fail, with the marked token, and
/// returns all that was said on them: shown, logged or printed.
std::string everythingSaid(GraphWorld& world, const Account& account) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    std::string said;
    auto page = makePage(account, "1");
    page.pageToken = SecretText(marked);
    world.store.savePages({page});
    {
        PagesViewModel pages(world.store, world.logger, world.clock, world.makeClient);
        AddPageFlow flow(pages, account, world.makeClient, [] {});
        pages.loadPages(account.id);
        flow.token.set(marked);
        flow.verifyToken();
        pages.addPage(SecretText(marked), account).detach();
        EXPECT_TRUE(runUntil([&] { return !*flow.isVerifying && !*pages.isVerifying; }));
        EXPECT_TRUE(runUntil([&] {
            return world.server.openConnections() == 0 &&
                   (world.loggedLines().find("avatar") != std::string::npos ||
                    std::filesystem::exists(world.store.localAvatarURL("1")));
        }));
        said = flow.errorMessage->value_or("") + pages.verifyError->value_or("");
    }
    said += testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
    return said + world.loggedLines();
}

class HostileGraphServer : public testing::TestWithParam<HostileServer> {};
class HostileGraphEcho : public HostileGraphServer {};

INSTANTIATE_TEST_SUITE_P(
    That, HostileGraphServer, testing::ValuesIn(hostileServers(goodBody)), hostileName);
INSTANTIATE_TEST_SUITE_P(That, HostileGraphEcho, testing::ValuesIn(echoingServers()), hostileName);

} // namespace

TEST_P(HostileGraphServer, IsEndedInBoundedTimeAndMemory) {
    const auto world = worldWith(GetParam().behave);
    const auto client = world->makeClient(SecretText(marked), std::nullopt);
    const HostileBounds bounds;
    const auto check = [](const auto& result) {
        EXPECT_EQ(result.has_value(), GetParam().answers);
        EXPECT_TRUE(result || !result.error().message.empty());
    };
    check(await(client->fetchPageInfo()));
    check(await(client->fetchManagedPages()));
    const auto picture = await(client->fetchCustomerAvatarData(PageId{"1"}));
    EXPECT_TRUE(picture || !picture.error().message.empty());
}

TEST_P(HostileGraphServer, IsToldOfWithoutTheToken) {
    const auto world = worldWith(GetParam().behave);
    EXPECT_THAT(everythingSaid(*world, makeAccount()), testing::Not(testing::HasSubstr("marked")));
}

TEST_P(HostileGraphEcho, IsToldOfWithoutTheToken) {
    const auto world = worldWith(GetParam().behave);
    const auto said = everythingSaid(*world, makeAccount());
    EXPECT_THAT(said, testing::Not(testing::HasSubstr("marked")));
    EXPECT_THAT(said, testing::Not(testing::HasSubstr("%6d%61%72%6b%65%64")));
}

TEST(HostileGraph, ProxiesAreToldOfWithoutTheToken) {
    auto account = makeAccount();
    account.proxyEnabled = true;
    account.proxyHost = "127.0.0.1";
    account.proxyPassword = SecretText("marked password");
    for (const std::int64_t port : {std::int64_t{LoopbackServer().port()}, std::int64_t{70000}}) {
        GraphWorld world;
        world.store.saveAccounts({account});
        account.proxyPort = port;
        EXPECT_THAT(everythingSaid(world, account), testing::Not(testing::HasSubstr("marked")));
    }
}

TEST(HostileGraph, AMillionPagesAreRefusedAndWhatJustFitsDoesNotStallTheLoop) {
    GraphWorld world;
    const auto client = world.makeClient(SecretText("t0k"), std::nullopt);
    const auto answerPages = [&](int count) {
        const std::string page = R"({"id":"1","name":"Trang","access_token":"t"})";
        std::string body = R"({"data":[)" + page;
        for (int i = 1; i < count; ++i)
            body += "," + page;
        world.answerAccounts({200, body + "]}", {}});
        return body.size();
    };
    answerPages(1'000'000);
    const auto refused = await(client->fetchManagedPages());
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().code, HttpClient::bodyTooLong);

    ASSERT_LT(answerPages(fittingPages), HttpOptions().bodyLimit);
    const PeakMemory memory;
    auto asking = client->fetchManagedPages();
    LongestTurn turn;
    EXPECT_TRUE(runUntil(
        [&] {
            turn.beat();
            return asking.isDone();
        },
        60s));
    const auto taken = await(std::move(asking));
    ASSERT_TRUE(taken) << taken.error().message;
    EXPECT_EQ(taken->size(), static_cast<std::size_t>(fittingPages));
    EXPECT_LT(memory.growth(), (512 << 20) * memoryFactor);
    EXPECT_LT(turn.longest(), 500ms);
}

TEST(HostileGraph, StrangeTextsOfAPageAreKeptAsTextsAndInTheirPlace) {
    GraphWorld world;
    const auto account = makeAccount();
    PagesViewModel pages(world.store, world.logger, world.clock, world.makeClient);
    const std::string name = "<b>&amp;\u202e\u2066" + std::string(1 << 20, 'n');
    for (const std::string id : {"../../x", "..", "/etc/x", ".hidden", ""}) {
        world.server.handle("*", [](ServerConnection& connection, const ReceivedRequest&) {
            connection.write("HTTP/1.1 200 OK\r\nContent-Length: 7\r\n\r\npicture");
        });
        world.answerMe({200, R"({"id":")" + id + R"(","name":")" + name + R"("})", {}});
        pages.addPage(SecretText("page-token"), account).detach();
        ASSERT_TRUE(runUntil([&] { return !*pages.isVerifying; }));
        ASSERT_FALSE(*pages.verifyError) << **pages.verifyError;
        EXPECT_EQ(pages.pages->back().pageId.text, id);
        EXPECT_EQ(pages.pages->back().pageName, name);
        const auto file = world.store.localAvatarURL(id);
        EXPECT_EQ(file.parent_path(), world.records / "avatars") << id;
        EXPECT_TRUE(runUntil([&] { return std::filesystem::exists(file); })) << id;
    }
}
