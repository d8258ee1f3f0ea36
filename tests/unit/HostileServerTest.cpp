#include "Services/SupportClient.h"
#include "ViewModels/PagesViewModel.h"
#include "support/GraphWorld.h"
#include "support/Repeated.h"

#include <gmock/gmock.h>

#include <fstream>
#include <regex>
#include <stdexcept>

using namespace tessaro;
using namespace tessaro::test;
using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::HasSubstr, testing::Not;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int manyPages = 20'000; // Checking each of them takes time.
constexpr auto timeLimit = 30s;
constexpr auto turnLimit = 2s;
constexpr std::size_t memoryFactor = 16; // A sanitizer needs memory of its own.
#else
constexpr int manyPages = 60'000;
constexpr auto timeLimit = 6s;
constexpr auto turnLimit = 400ms;
constexpr std::size_t memoryFactor = 1;
#endif

constexpr const char* marked = "EAAB marked#token/%1";

/// An object that every request of both clients accepts.
constexpr const char* goodBody = R"({"id":"7","name":"Trang","data":[],"success":true,
    "version":"2.0","url":"javascript:x","notes":"<b>\u202e"})";

/// A handler that answers with a text made from the request's target, which contains the token.
LoopbackServer::Handler echoes(std::function<std::string(const std::string& target)> text) {
    return [text](ServerConnection& connection, const ReceivedRequest& request) {
        connection.write(text(request.target));
    };
}

/// Makes each of the client's requests with the marked token, and returns the messages of those
/// that fail.
std::string errorsOf(GraphWorld& world, const Account& account) {
    const auto client = world.makeClient(SecretText(marked), account);
    std::string errors;
    const auto add = [&](const auto& result) { errors += result ? "" : result.error().message; };
    add(await(client->fetchPageInfo()));
    add(await(client->fetchManagedPages()));
    add(await(client->fetchCustomerAvatarData(PageId{"1"})));
    EXPECT_FALSE(errors.empty());
    return errors;
}

/// One way in which a server can treat its client badly.
struct HostileServer {
    std::string name;
    LoopbackServer::Handler behave; ///< Empty for a server that refuses connections.
    bool answers = false;           ///< Whether a JSON client still gets the whole answer.

    /// Makes the server behave so, and returns the origin for the client.
    std::string start(LoopbackServer& server) const {
        if (!behave)
            return LoopbackServer().origin(); // That server has ended: nobody listens there.
        server.handle("*", behave);
        return server.origin();
    }
};

const std::string success = "HTTP/1.1 200 OK\r\n";
const std::string chunked = success + "Transfer-Encoding: chunked\r\n\r\n";

std::string withLength(std::size_t length) {
    return success + "Content-Length: " + std::to_string(length) + "\r\n\r\n";
}

LoopbackServer::Handler sends(std::string bytes) {
    return
        [bytes](ServerConnection& connection, const ReceivedRequest&) { connection.write(bytes); };
}

LoopbackServer::Handler sendsDocument(const std::string& body) {
    return sends(withLength(body.size()) + body);
}

LoopbackServer::Handler sendsForEver(std::string first, std::string again) {
    return [first, again](ServerConnection& connection, const ReceivedRequest&) {
        connection.write(first);
        while (connection.write(again)) {
        }
    };
}

LoopbackServer::Handler drips(std::string first) {
    return [first](ServerConnection& connection, const ReceivedRequest&) {
        connection.write(first);
        while (connection.pause(50ms) && connection.write("x")) {
        }
    };
}

/// Every bad behaviour that the tests know. What JSON readers make of bad bytes is for the fuzz
/// targets.
std::vector<HostileServer> hostileServers() {
    const std::string body = goodBody;
    const std::string block(4000, 'x');
    const auto withMember = [&](const std::string& member) {
        return "{\"x\":" + member + "," + body.substr(1);
    };
    return {
        {"RefusesConnections", nullptr},
        {"AcceptsAndCloses",
         [](ServerConnection& connection, const ReceivedRequest&) { connection.drop(); }},
        {"SendsNothing",
         [](ServerConnection& connection, const ReceivedRequest&) { connection.waitForClose(); }},
        {"DripsItsHead", drips(success + "X-Slow: ")},
        {"DripsItsBody", drips(withLength(100000))},
        {"CutsItsBodyShort", sends(withLength(body.size() + 1) + body)},
        {"SendsMoreThanItPromised", sends(withLength(body.size()) + body + body), true},
        {"AnnouncesALengthThatIsNoNumber", sends(success + "Content-Length: many\r\n\r\n" + body)},
        {"AnnouncesANegativeLength", sends(success + "Content-Length: -9\r\n\r\n" + body)},
        {"CutsItsChunksShort", sends(chunked + "fff\r\n" + body.substr(0, body.size() / 2))},
        {"SizesItsChunksInWords", sends(chunked + "five\r\nhello\r\n0\r\n\r\n")},
        {"SpeaksNoHTTP", sends("SSH-2.0-server\r\n")},
        {"NeverEndsItsHeaders", sendsForEver(success, "X-More: " + block + "\r\n")},
        {"NeverEndsOneHeaderLine", sendsForEver(success + "X-Long: ", block)},
        {"NeverEndsItsInterimAnswers",
         sendsForEver("", repeated("HTTP/1.1 103 Early Hints\r\n\r\n", 100))},
        {"NeverEndsItsBody", sendsForEver(success + "\r\n", block)},
        {"NeverEndsItsChunks", sendsForEver(chunked, "fa0\r\n" + block + "\r\n")},
        {"NeverEndsItsTrailers", sendsForEver(chunked + "0\r\n", "X-More: x\r\n")},
        {"RedirectsInACircle",
         [](ServerConnection& connection, const ReceivedRequest& request) {
             connection.write(
                 "HTTP/1.1 301 Moved\r\nContent-Length: 0\r\nLocation: " + request.target +
                 "\r\n\r\n");
         }},
        {"SucceedsWithoutABody", sends("HTTP/1.1 204 No Content\r\n\r\n")},
        {"SendsUTF8ThatIsNone", sendsDocument(withMember("\"\xff\xc0\x80\""))},
        {"NestsArrays100000Deep",
         sendsDocument(withMember(repeated("[", 100000) + repeated("]", 100000)))},
        {"PutsAZeroByteBehindItsAnswer", sendsDocument(body + "\0"s)},
    };
}

/// The peak of this process's memory since the object was made (proc(5), VmHWM).
class PeakMemory {
public:
    PeakMemory() {
        std::ofstream("/proc/self/clear_refs") << "5"; // Forgets the peak so far.
        atStart_ = statusValue("VmRSS:");
    }

    /// In bytes, beyond the memory at the start.
    std::size_t growth() const {
        const auto peak = statusValue("VmHWM:");
        return peak > atStart_ ? peak - atStart_ : 0;
    }

private:
    static std::size_t statusValue(const std::string& key) {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with(key))
                return std::stoul(line.substr(key.size())) * 1024;
        throw std::runtime_error("no " + key + " in /proc/self/status");
    }

    std::size_t atStart_;
};

class AHostileServer : public testing::TestWithParam<HostileServer> {};

INSTANTIATE_TEST_SUITE_P(
    That, AHostileServer, testing::ValuesIn(hostileServers()),
    [](const auto& server) { return server.param.name; });

} // namespace

TEST_P(AHostileServer, IsEndedInBoundedTimeAndMemoryAndToldOfWithoutTheToken) {
    GraphWorld world;
    // Short limits, because the test waits for each server.
    const HttpOptions options{.silenceLimit = 1s, .totalLimit = 700ms, .bodyLimit = 1 << 20};
    world.routes = AccountRoutes(options);
    world.baseUrl = GetParam().start(world.server);
    const auto client = world.makeClient(SecretText(marked), std::nullopt);
    SupportClient support(world.settings, world.baseUrl, world.device, world.logger, options);
    const auto start = std::chrono::steady_clock::now();
    const PeakMemory memory;
    const auto check = [](const auto& result, bool answers) {
        EXPECT_EQ(result.has_value(), answers);
        const auto message = result ? "fine" : result.error().message;
        EXPECT_FALSE(message.empty());
        EXPECT_THAT(message, Not(HasSubstr("marked")));
    };
    check(await(client->fetchPageInfo()), GetParam().answers);
    check(await(client->fetchManagedPages()), GetParam().answers);
    const auto picture = await(client->fetchCustomerAvatarData(PageId{"1"}));
    check(picture, picture.has_value());

    const auto info = await(support.checkUpdate());
    check(info, GetParam().answers);
    EXPECT_TRUE(!info || *info == (UpdateInfo{"2.0", "javascript:x", "<b>\u202e"}));
    check(await(support.uploadLog("a.log", std::string(1 << 20, 'x'))), GetParam().answers);
    for (const std::string path : {"update/check", "support/upload-log"})
        EXPECT_EQ(
            std::regex_search(
                world.loggedLines(), std::regex("\\[ERROR\\] SupportClient: .*" + path)),
            !GetParam().answers)
            << path;
    EXPECT_LT(std::chrono::steady_clock::now() - start, timeLimit);
    EXPECT_LT(memory.growth(), (32 << 20) * memoryFactor);
}

TEST(HostileGraph, ServersThatEchoTheTokenAreToldOfWithoutIt) {
    const std::string empty = "Content-Length: 0\r\n";
    for (const auto& behave :
         {echoes([](auto& target) {
              return "HTTP/1.1 400 Bad\r\n\r\n{\"error\":{\"message\":\"No " + target + marked +
                     "\"}}";
          }),
          echoes([](auto& target) { return "HTTP/1.1 500 Oh\r\n\r\n" + target; }),
          echoes([](auto& target) { return "HTTP/" + target + "\r\n\r\n"; }),
          echoes([&](auto& target) {
              return "HTTP/1.1 302 Found\r\n" + empty + "Location: http://127.0.0.1:1" + target +
                     "\r\n\r\n";
          })}) {
        GraphWorld world;
        world.server.handle("*", behave);
        EXPECT_THAT(errorsOf(world, makeAccount()), Not(HasSubstr("marked")));
    }
}

TEST(HostileGraph, ProxiesAreToldOfWithoutTheToken) {
    for (const std::int64_t port : {std::int64_t{LoopbackServer().port()}, std::int64_t{70000}}) {
        GraphWorld world;
        auto account = proxiedBy(port);
        account.proxyPassword = SecretText("marked password");
        EXPECT_THAT(errorsOf(world, account), Not(HasSubstr("marked")));
    }
}

TEST(HostileGraph, LongErrorsAreReadWithoutStallingTheLoop) {
    GraphWorld world;
    SupportClient support(world.settings, world.baseUrl, world.device, world.logger, {});
    std::string body = R"({"error":{"message":"Why","more":[0)";
    for (int i = 0; i < 600'000; ++i) // Such an answer takes most of a second to decode.
        body += ",1";
    world.server.answer("*", {400, body += "]}}", {}});
    auto asking = world.makeClient(SecretText(marked), std::nullopt)->fetchPageInfo();
    EXPECT_LT(longestTurnUntil([&] { return asking.isDone(); }), turnLimit);
    EXPECT_EQ(await(std::move(asking)).error().message, "Why");
    for (const int status : {200, 404}) {
        world.server.answer("*", {status, body, {}});
        auto checking = support.checkUpdate();
        EXPECT_LT(longestTurnUntil([&] { return checking.isDone(); }), turnLimit);
        EXPECT_FALSE(await(std::move(checking)));
    }
}

TEST(HostileGraph, ALongListDoesNotStallTheLoopAndAnAnswerAboveTheLimitIsRefused) {
    GraphWorld world;
    const auto client = world.makeClient(SecretText("t0k"), std::nullopt);
    std::string body = R"({"data":[{"id":"0","name":"Trang","access_token":"t"})";
    for (int i = 1; i < manyPages; ++i)
        body += R"(,{"id":"1","name":"Trang","access_token":"t"})";
    world.answerAccounts({200, body + "]}", {}});
    const PeakMemory memory;
    auto asking = client->fetchManagedPages();
    EXPECT_LT(longestTurnUntil([&] { return asking.isDone(); }), turnLimit);
    EXPECT_EQ(await(std::move(asking)).value().pages.size(), static_cast<std::size_t>(manyPages));
    EXPECT_LT(memory.growth(), (96 << 20) * memoryFactor);

    world.answerAccounts({200, std::string(HttpOptions().bodyLimit + 1, ' '), {}});
    const auto refused = await(client->fetchManagedPages());
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().code, HttpClient::bodyTooLong);
}

TEST(HostileGraph, StrangeTextsOfAPageAreKeptAsTextsAndInTheirPlace) {
    GraphWorld world;
    const Account account = makeAccount();
    world.store.saveAccounts({account});
    PagesViewModel pages(world.store, world.logger, world.clock, world.makeClient);
    pages.loadPages(account.id);
    const std::string name = "<b>&amp;\u202e\u2066" + std::string(1 << 20, 'n');
    world.server.answer("*", "picture");
    for (const std::string id : {"../../x", "..", "/etc/x", ".hidden", ""}) {
        world.answerMe({200, R"({"id":")" + id + R"(","name":")" + name + R"("})", {}});
        ASSERT_TRUE(await(pages.addPage(SecretText("page-token"), account)));
        EXPECT_EQ(pages.pages->back().pageId.text, id);
        EXPECT_EQ(pages.pages->back().pageName, name);
        const auto file = world.store.localAvatarURL(id);
        EXPECT_EQ(file.parent_path(), world.records / "avatars") << id;
        EXPECT_TRUE(runUntil([&] { return std::filesystem::exists(file); })) << id;
    }
}
