#include "support/HostileServers.h"

#include <nlohmann/json.hpp>

namespace tessaro::test {

namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

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

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// The object with each member twice. The first of each two has a number for its value.
std::string withEveryKeyTwice(const std::string& body) {
    auto numbers = nlohmann::json::parse(body);
    for (auto& value : numbers)
        value = 2;
    auto text = numbers.dump();
    text.back() = ',';
    return text + body.substr(1);
}

/// Sixty-four megabytes of blanks, compressed to a few kilobytes.
void sendGzipBomb(ServerConnection& connection, const ReceivedRequest&) {
    const auto compressor = GObjectPtr<GConverter>::adopt(
        G_CONVERTER(g_zlib_compressor_new(G_ZLIB_COMPRESSOR_FORMAT_GZIP, 9)));
    const std::string blanks(1 << 20, ' ');
    std::string bomb(1 << 18, '\0');
    gsize size = 0;
    for (int left = 63; left >= 0; --left) {
        gsize read = 0, written = 0;
        g_converter_convert(
            compressor.get(), blanks.data(), blanks.size(), bomb.data() + size, bomb.size() - size,
            left ? G_CONVERTER_NO_FLAGS : G_CONVERTER_INPUT_AT_END, &read, &written, nullptr);
        size += written;
    }
    connection.write(success + "Content-Encoding: gzip\r\n\r\n" + bomb.substr(0, size));
}

} // namespace

std::vector<HostileServer> hostileServers(const std::string& body) {
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
        {"SendsAGzipBomb", sendGzipBomb},
        {"SendsUTF8ThatIsNone", sendsDocument(withMember("\"\xff\xc0\x80\""))},
        {"NestsArrays100000Deep",
         sendsDocument(withMember(repeated("[", 100000) + repeated("]", 100000)))},
        {"SendsANumberOf10000Digits", sendsDocument(withMember(std::string(10000, '9')))},
        {"SendsEveryKeyTwice", sendsDocument(withEveryKeyTwice(body)), true},
        {"PutsAZeroByteBehindItsAnswer", sendsDocument(body + "\0"s)},
    };
}

} // namespace tessaro::test
