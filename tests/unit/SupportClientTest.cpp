#include "Services/SupportClient.h"

#include "support/LoopbackServer.h"
#include "support/MainLoop.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

using namespace tessaro;
using namespace tessaro::test;
using testing::HasSubstr;

namespace {

constexpr const char* checkPath = "/api/update/check";
constexpr const char* uploadPath = "/api/support/upload-log";

class SupportClientTest : public testing::Test {
protected:
    Error errorOfCheck(const std::string& base) {
        client_.serverURL.set(base);
        const auto info = await(client_.checkUpdate());
        return info ? Error{} : info.error();
    }
    /// Expects this text in the last line of the log.
    void expectLogged(const std::string& line) {
        EXPECT_THAT(
            world_.loggedLines(), testing::EndsWith("] [ERROR] SupportClient: " + line + "\n"));
    }

    LoopbackServer server_;
    const std::string origin_ = server_.origin();
    StoreWorld world_;
    SupportClient client_{
        world_.settings,
        origin_,
        world_.device,
        world_.logger,
        {.silenceLimit = std::chrono::seconds(1)}};
};

} // namespace

TEST_F(SupportClientTest, UploadsALogInThreeMembersWhateverTheAnswerSays) {
    server_.answer(uploadPath, R"({"success":false,"message":null})");
    const std::string content = "dòng \"một\"\n\u0001 hai\xFF";
    ASSERT_TRUE(await(client_.uploadLog("0123abc-05-03-2025.log", content)));
    const auto request = server_.requests().at(0);
    EXPECT_EQ(
        nlohmann::json::parse(request.body), (nlohmann::json{
                                                 {"uuid", world_.device.getDeviceUUID()},
                                                 {"filename", "0123abc-05-03-2025.log"},
                                                 {"content", "dòng \"một\"\n\u0001 hai\uFFFD"}}));
    EXPECT_THAT(world_.loggedLines(), testing::Not(HasSubstr("SupportClient")));
}

TEST_F(SupportClientTest, TakesTheBaseAddressFromTheSettingsAndAddsOnlyAMissingScheme) {
    world_.settings.setText(SupportClient::serverURLKey, "stored.example");
    EXPECT_EQ(
        *SupportClient(world_.settings, origin_, world_.device, world_.logger, {}).serverURL,
        "stored.example");
    server_.answer("/base//api/update/check", R"({"version":"1","url":"u","notes":"n"})");
    EXPECT_EQ(errorOfCheck("HTTP" + origin_.substr(4) + "/base/"), Error{});
    // The client added "https://", and the plain server does not speak TLS.
    errorOfCheck(origin_.substr(7));
    EXPECT_THAT(
        world_.loggedLines(), HasSubstr(
                                  "SupportClient: Lỗi kết nối mạng khi gửi GET tới https" +
                                  origin_.substr(4) + checkPath + ": "));
    for (const auto& [base, address] : std::map<std::string, std::string>{
             {"", "https://"},
             {"ht tp://a", "https://ht tp://a"},
             {"http:a", "http:a"},
             {"máy.example", "https://máy.example"}}) {
        EXPECT_EQ(errorOfCheck(base), (Error{"SupportClient", 400, "URL không hợp lệ."}));
        expectLogged("URL không hợp lệ: " + address + checkPath);
    }
}

TEST_F(SupportClientTest, DoesNotTouchItsLoggerWhenItIsGoneBeforeTheAnswer) {
    server_.answer(checkPath, {404, "{}", {}});
    std::optional<SupportClient> client(
        std::in_place, world_.settings, origin_, world_.device, world_.logger, HttpOptions{});
    auto checking = client->checkUpdate();
    client.reset();
    EXPECT_FALSE(await(std::move(checking)));
    EXPECT_THAT(world_.loggedLines(), testing::Not(HasSubstr("ERROR")));
}

TEST_F(SupportClientTest, ReturnsAndLogsWhyARequestFailed) {
    for (const auto& [body, message] : std::map<std::string, std::string>{
             {R"({"error":"E","message":"M"})", "E"},
             {R"({"error":null,"message":"M"})", "M"},
             {"{}", "Lỗi (404)"},
             {"<html></html>", "Lỗi kết nối (404)."},
             {R"({"error":1})", "Lỗi kết nối (404)."}}) {
        server_.answer(checkPath, {404, body, {}});
        EXPECT_EQ(errorOfCheck(origin_), (Error{"SupportClient", 404, message})) << body;
        expectLogged("Yêu cầu GET tới " + origin_ + checkPath + " thất bại: " + message);
    }
    server_.answer(checkPath, R"({"version":"1.3.0","url":"https://a.example/"})");
    const auto error = errorOfCheck(origin_);
    EXPECT_EQ(error.domain, "JSON");
    expectLogged("Lỗi giải mã phản hồi JSON từ " + origin_ + checkPath + ": " + error.message);
}
