#include "support/HostileServers.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>

namespace tessaro::test {

namespace {

using namespace std::chrono_literals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr auto timeLimit = 30s;
#else
constexpr auto timeLimit = 6s;
#endif

constexpr const char* success = "HTTP/1.1 200 OK\r\n";
constexpr const char* chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";

LoopbackServer::Handler sends(std::string bytes) {
    return
        [bytes](ServerConnection& connection, const ReceivedRequest&) { connection.write(bytes); };
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

std::string lengthLine(std::size_t length) {
    return "Content-Length: " + std::to_string(length) + "\r\n\r\n";
}

std::string document(const std::string& body) {
    return success + lengthLine(body.size()) + body;
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// The object with one more member in front, as the text has it.
std::string withMember(const std::string& body, const std::string& member) {
    return "{" + member + "," + body.substr(1);
}

/// The object with each member twice, at first with a number for its value.
std::string withEveryKeyTwice(const std::string& body) {
    auto numbers = nlohmann::json::parse(body);
    for (auto& value : numbers)
        value = 2;
    const auto text = numbers.dump();
    return withMember(body, text.substr(1, text.size() - 2));
}

/// Sixty-four megabytes of blanks in a few kilobytes.
std::string gzipBomb() {
    const auto compressor = GObjectPtr<GConverter>::adopt(
        G_CONVERTER(g_zlib_compressor_new(G_ZLIB_COMPRESSOR_FORMAT_GZIP, 9)));
    const auto memory = GObjectPtr<GOutputStream>::adopt(g_memory_output_stream_new_resizable());
    const auto stream = GObjectPtr<GOutputStream>::adopt(
        g_converter_output_stream_new(memory.get(), compressor.get()));
    const std::string block(1 << 20, ' ');
    for (int i = 0; i < 64; ++i)
        g_output_stream_write_all(
            stream.get(), block.data(), block.size(), nullptr, nullptr, nullptr);
    g_output_stream_close(stream.get(), nullptr, nullptr);
    auto* const out = G_MEMORY_OUTPUT_STREAM(memory.get());
    return {
        static_cast<const char*>(g_memory_output_stream_get_data(out)),
        g_memory_output_stream_get_data_size(out)};
}

std::vector<HostileServer> hostileConnections(const std::string& body) {
    const auto head = success + lengthLine(body.size());
    const std::string block(4000, 'x');
    return {
        {"refuses connections", nullptr},
        {"accepts and closes",
         [](ServerConnection& connection, const ReceivedRequest&) { connection.drop(); }},
        {"sends nothing",
         [](ServerConnection& connection, const ReceivedRequest&) { connection.waitForClose(); }},
        {"drips its head", drips(std::string(success) + "X-Slow: ")},
        {"drips its body", drips(success + lengthLine(100000))},
        {"cuts its body short", sends(head + body.substr(0, body.size() - 1))},
        {"cuts its chunked body short", sends(chunked + std::string("5\r\n") + body.substr(0, 5))},
        {"sends more than it promised", sends(head + body + body), true},
        {"announces a length that is no number",
         sends(success + std::string("Content-Length: many\r\n\r\n") + body)},
        {"announces a negative length",
         sends(success + std::string("Content-Length: -9\r\n\r\n") + body)},
        {"announces a length beyond 64 bits",
         sends(success + std::string("Content-Length: 99999999999999999999\r\n\r\n") + body)},
        {"sizes its chunks in words", sends(chunked + std::string("five\r\nhello\r\n0\r\n\r\n"))},
        {"sends a chunk of nearly 64 bits",
         sendsForEver(chunked + std::string("fffffffffffffff0\r\n"), block)},
        {"speaks no HTTP", sends("SSH-2.0-server\r\n")},
        {"never ends its headers", sendsForEver(success, "X-More: " + block + "\r\n")},
        {"never ends one header line", sendsForEver(std::string(success) + "X-Long: ", block)},
        {"never ends its interim answers",
         sendsForEver("", repeated("HTTP/1.1 103 Early Hints\r\n\r\n", 100))},
        {"never ends its body", sendsForEver(success + std::string("\r\n"), block)},
        {"never ends its chunks", sendsForEver(chunked, "fa0\r\n" + block + "\r\n")},
        {"never ends its trailers", sendsForEver(chunked + std::string("0\r\n"), "X-More: x\r\n")},
        {"redirects in a circle",
         [](ServerConnection& connection, const ReceivedRequest& request) {
             connection.write(
                 "HTTP/1.1 301 Moved\r\nContent-Length: 0\r\nLocation: " + request.target +
                 "\r\n\r\n");
         }},
        {"redirects to a file",
         [](ServerConnection& connection, const ReceivedRequest& request) {
             connection.write(
                 "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: file:///etc/passwd?" +
                 request.target + "\r\n\r\n");
         }},
    };
}

std::vector<HostileServer> hostileDocuments(const std::string& body) {
    return {
        {"succeeds without a body", sends("HTTP/1.1 204 No Content\r\n\r\n")},
        {"sends a gzip bomb",
         [](ServerConnection& connection, const ReceivedRequest&) {
             // Made when it is asked for: this list is made at the start of every test.
             const auto bomb = gzipBomb();
             connection.write(
                 success + std::string("Content-Encoding: gzip\r\n") + lengthLine(bomb.size()) +
                 bomb);
         }},
        {"sends UTF-8 that is none", sends(document(withMember(body, "\"x\":\"\xff\xc0\x80\"")))},
        {"sends half a surrogate pair", sends(document(withMember(body, R"("x":"\ud800")")))},
        {"nests arrays without end", sends(document(repeated("[", 100000)))},
        {"nests arrays 100,000 deep",
         sends(
             document(withMember(body, "\"x\":" + repeated("[", 100000) + repeated("]", 100000))))},
        {"sends a number of 10,000 digits",
         sends(document(withMember(body, "\"x\":" + std::string(10000, '9'))))},
        {"sends every key twice", sends(document(withEveryKeyTwice(body))), true},
        {"puts a zero byte behind its answer", sends(document(body + std::string(1, '\0')))},
    };
}

} // namespace

std::vector<HostileServer> hostileServers(const std::string& body) {
    auto all = hostileConnections(body);
    for (auto& server : hostileDocuments(body))
        all.push_back(std::move(server));
    return all;
}

std::string hostileName(const testing::TestParamInfo<HostileServer>& server) {
    auto name = server.param.name;
    std::erase_if(name, [](char c) { return !g_ascii_isalnum(c) && c != ' '; });
    std::ranges::replace(name, ' ', '_');
    return name;
}

HostileBounds::~HostileBounds() {
    EXPECT_LT(std::chrono::steady_clock::now() - start_, timeLimit);
    EXPECT_LT(memory_.growth(), (32 << 20) * memoryFactor);
}

HttpOptions hostileOptions() {
    return {.silenceLimit = 1s, .totalLimit = 700ms, .bodyLimit = 1 << 20};
}

} // namespace tessaro::test
