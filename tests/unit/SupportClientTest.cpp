#include "Services/SupportClient.h"

#include "support/LoopbackServer.h"
#include "support/MainLoop.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <map>

using namespace tessaro;
using namespace std::chrono_literals;
using test::LoopbackServer;

namespace {

constexpr const char* checkPath = "/api/update/check";
constexpr const char* uploadPath = "/api/support/upload-log";

class SupportClientTest : public testing::Test {
protected:
    SupportClientTest() { std::ofstream(temp_ / "machine-id") << "0123abc\n"; }

    Result<UpdateInfo> checkUpdate(const std::string& base) {
        client_.serverURL.set(base);
        return test::await(client_.checkUpdate());
    }

    /// What the log says since the last call, without time and level, which must be "ERROR".
    std::string logged() {
        logger_.flush(10s);
        constexpr std::string_view head = "[yyyy-MM-dd HH:mm:ss] [ERROR] ";
        const auto file = logger_.currentLogURL();
        const auto line = std::filesystem::exists(file) ? logger_.readCurrentLog() : "";
        std::filesystem::remove(file);
        const bool isError = line.find("[ERROR] ") == head.find("[ERROR] ");
        return isError ? line.substr(head.size()) : line;
    }

    test::TempFolder temp_;
    LoopbackServer server_;
    SettingsStore settings_{temp_ / "settings.ini"};
    DeviceIdentity device_{settings_, temp_ / "machine-id"};
    test::ManualClock clock_;
    AppLogger logger_{temp_ / "logs", device_, clock_};
    SupportClient client_{
        settings_, server_.origin(), device_, logger_, {.silenceLimit = 1s, .totalLimit = {}}};
};

} // namespace

TEST_F(SupportClientTest, AsksForTheNewestVersion) {
    server_.answer(
        checkPath, R"({"version":"1.3.0","url":"https://a.example/","notes":"Sửa lỗi","more":1})");
    const auto info = test::await(client_.checkUpdate());
    ASSERT_TRUE(info) << info.error().message;
    EXPECT_EQ(*info, (UpdateInfo{"1.3.0", "https://a.example/", "Sửa lỗi"}));
    const auto request = server_.requests().at(0);
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.headers.at("content-type"), "application/json");
    EXPECT_EQ(request.body, "");
    EXPECT_EQ(logged(), "");
}

TEST_F(SupportClientTest, UploadsALogInThreeMembersWhateverTheAnswerSays) {
    server_.answer(uploadPath, R"({"success":false,"message":null})");
    const std::string content = "dòng \"một\"\n\u0001 hai\xFF";
    ASSERT_TRUE(test::await(client_.uploadLog("0123abc-05-03-2025.log", content)));
    const auto request = server_.requests().at(0);
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.headers.at("content-type"), "application/json");
    EXPECT_EQ(
        nlohmann::json::parse(request.body), (nlohmann::json{
                                                 {"uuid", "0123abc"},
                                                 {"filename", "0123abc-05-03-2025.log"},
                                                 {"content", "dòng \"một\"\n\u0001 hai\uFFFD"}}));
    EXPECT_EQ(logged(), "");
}

TEST_F(SupportClientTest, TakesTheBaseAddressFromTheSettingsAndAddsOnlyAMissingScheme) {
    EXPECT_EQ(*client_.serverURL, server_.origin());
    settings_.setText(SupportClient::serverURLKey, "stored.example");
    EXPECT_EQ(
        *SupportClient(settings_, "https://a.example", device_, logger_, {}).serverURL,
        "stored.example");

    server_.answer("/base//api/update/check", R"({"version":"1","url":"u","notes":"n"})");
    EXPECT_TRUE(checkUpdate("HTTP" + server_.origin().substr(4) + "/base/"));
    // TLS to a plain server: the scheme was added.
    const auto withoutScheme = server_.origin().substr(7);
    EXPECT_FALSE(checkUpdate(withoutScheme));
    const auto line = logged();
    EXPECT_TRUE(line.starts_with(
        "SupportClient: Lỗi kết nối mạng khi gửi GET tới https://" + withoutScheme + checkPath +
        ": "))
        << line;
}

TEST_F(SupportClientTest, RefusesAnAddressThatDoesNotParse) {
    const std::map<std::string, std::string> addresses{
        {"", "https://"},
        {"ht tp://a", "https://ht tp://a"},
        {"http://", "http://"},
        {"http:a", "http:a"},
        {"httpx://a", "httpx://a"}};
    for (const auto& [base, address] : addresses) {
        const auto info = checkUpdate(base);
        ASSERT_FALSE(info) << base;
        EXPECT_EQ(info.error(), (Error{"SupportClient", 400, "URL không hợp lệ."}));
        EXPECT_EQ(logged(), "SupportClient: URL không hợp lệ: " + address + checkPath + "\n");
    }
}

TEST_F(SupportClientTest, PassesOnTheServersOwnWordsAboutAFailure) {
    const struct {
        const char* body;
        const char* message;
    } cases[] = {
        {R"({"error":"E","message":"M"})", "E"},
        {R"({"error":null,"message":"M"})", "M"},
        {"{}", "Lỗi (404)"},
        {"<html></html>", "Lỗi kết nối (404)."},
        {R"({"error":1})", "Lỗi kết nối (404)."},
        {"", "Lỗi kết nối (404)."},
    };
    for (const auto& [body, message] : cases) {
        server_.answer(checkPath, {404, body, {}});
        const auto info = test::await(client_.checkUpdate());
        ASSERT_FALSE(info) << body;
        EXPECT_EQ(info.error(), (Error{"SupportClient", 404, message}));
        EXPECT_EQ(
            logged(), "SupportClient: Yêu cầu GET tới " + server_.origin() + checkPath +
                          " thất bại: " + message + "\n");
    }
}

TEST_F(SupportClientTest, FailsWithTheDecodersErrorWhenASuccessLacksAMember) {
    server_.answer(checkPath, R"({"version":"1.3.0","url":"https://a.example/"})");
    const auto info = test::await(client_.checkUpdate());
    ASSERT_FALSE(info);
    EXPECT_EQ(info.error().domain, "JSON");
    EXPECT_EQ(
        logged(), "SupportClient: Lỗi giải mã phản hồi JSON từ " + server_.origin() + checkPath +
                      ": " + info.error().message + "\n");

    server_.answer(uploadPath, R"({"message":"ok"})");
    const auto uploaded = test::await(client_.uploadLog("a.log", "text"));
    ASSERT_FALSE(uploaded);
    EXPECT_EQ(uploaded.error().domain, "JSON");
}

TEST_F(SupportClientTest, TellsSilenceFromAnAnswerThatIsNotHttp) {
    server_.handle("*", [](auto& connection, auto&) { connection.waitForClose(); });
    const auto silence = test::await(client_.uploadLog("a.log", "text"));
    ASSERT_FALSE(silence);
    EXPECT_EQ(silence.error().domain, "HTTP");
    EXPECT_EQ(
        logged(), "SupportClient: Lỗi kết nối mạng khi gửi POST tới " + server_.origin() +
                      uploadPath + ": " + silence.error().message + "\n");

    LoopbackServer other;
    other.handleConnections([](auto& connection) {
        connection.write("SSH-2.0-Server\r\n\r\n");
        connection.waitForClose();
    });
    const auto nonsense = checkUpdate(other.origin());
    ASSERT_FALSE(nonsense);
    EXPECT_EQ(nonsense.error(), (Error{"SupportClient", 500, "Phản hồi từ máy chủ không hợp lệ."}));
    EXPECT_EQ(
        logged(),
        "SupportClient: Phản hồi từ máy chủ không hợp lệ cho " + other.origin() + checkPath + "\n");
}
