#include "Services/SupportClient.h"

#include "Services/AnswerDecoding.h"
#include "Services/BuildConfig.h"
#include "Services/SupportAnswers.h"

#include <utility>

namespace tessaro {

namespace {

constexpr const char* domain = "SupportClient";

std::string messageOf(const Result<APIErrorResponse>& answer, unsigned code) {
    const auto status = "(" + std::to_string(code) + ")";
    if (!answer)
        return "Lỗi kết nối " + status + ".";
    return shownPart(answer->error.value_or(answer->message.value_or("Lỗi " + status)));
}

/// The base address with a scheme; nothing else about it is changed.
std::string withScheme(const std::string& base) {
    const bool hasScheme = g_ascii_strncasecmp(base.c_str(), "http", 4) == 0;
    return hasScheme ? base : "https://" + base;
}

} // namespace

SupportClient::SupportClient(
    const SettingsStore& settings, std::string defaultServerURL, const DeviceIdentity& device,
    AppLogger& logger, HttpOptions options)
    : serverURL(settings.text(serverURLKey).value_or(std::move(defaultServerURL))),
      device_(device),
      logger_(logger),
      http_(std::move(options)) {}

SupportClient& SupportClient::shared() {
    static SupportClient client(
        SettingsStore::shared(), build::supportServer, DeviceIdentity::shared(),
        AppLogger::shared(),
        {.silenceLimit = std::chrono::seconds(60),
         .totalLimit = std::nullopt,
         .useSystemProxy = true});
    return client;
}

Task<Result<UpdateInfo>> SupportClient::checkUpdate() {
    return performRequest("/api/update/check", "GET", std::nullopt, &decodeUpdateInfo);
}

Task<Result<void>> SupportClient::uploadLog(std::string filename, std::string content) {
    const nlohmann::json body{
        {"uuid", device_.getDeviceUUID()}, {"filename", filename}, {"content", content}};
    const auto answer = co_await performRequest(
        "/api/support/upload-log", "POST",
        body.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace), &decodeSimpleResponse);
    if (!answer)
        co_return tl::unexpected<Error>(answer.error());
    co_return Result<void>();
}

template <typename Answer>
Task<Result<Answer>> SupportClient::performRequest(
    std::string path, std::string method, std::optional<std::string> body,
    Result<Answer> (*decode)(const nlohmann::json&)) {
    const auto address = withScheme(*serverURL) + path;
    const auto fail = [this, alive = lifetime_.watch()](const std::string& line, Error error) {
        if (alive)
            logger_.log("SupportClient: " + line, "ERROR");
        return tl::unexpected<Error>(std::move(error));
    };

    // A variable: GCC 12 destroys a braced temporary within an await twice.
    HttpRequest request{
        .method = method, .url = address, .contentType = "application/json", .body = body};
    auto response = co_await http_.send(std::move(request));
    if (!response && response.error().code == HttpClient::invalidUrl)
        co_return fail("URL không hợp lệ: " + address, {domain, 400, "URL không hợp lệ."});
    if (!response && response.error().code == HttpClient::notHttp)
        co_return fail(
            "Phản hồi từ máy chủ không hợp lệ cho " + address,
            {domain, 500, "Phản hồi từ máy chủ không hợp lệ."});
    if (!response)
        co_return fail(
            "Lỗi kết nối mạng khi gửi " + method + " tới " + address + ": " +
                response.error().message,
            response.error());
    const unsigned status = response->status;
    if (!response->isSuccess()) {
        auto decoding = decodedAnswer(std::move(response->body), &decodeAPIErrorResponse);
        const auto message = messageOf(co_await std::move(decoding), status);
        co_return fail(
            "Yêu cầu " + method + " tới " + address + " thất bại: " + message,
            {domain, static_cast<int>(status), message});
    }
    auto decoding = decodedAnswer(std::move(response->body), decode);
    auto answer = co_await std::move(decoding);
    if (!answer)
        co_return fail(
            "Lỗi giải mã phản hồi JSON từ " + address + ": " + answer.error().message,
            answer.error());
    co_return answer;
}

} // namespace tessaro
