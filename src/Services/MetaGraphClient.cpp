#include "Services/MetaGraphClient.h"

#include "Platform/GHandle.h"
#include "Services/AccountRoutes.h"
#include "Services/AnswerDecoding.h"
#include "Services/GraphAnswers.h"
#include "Services/TokenRedaction.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tessaro {

namespace {

constexpr const char* domain = "MetaGraph";

Result<void> checkHTTPResponse(const HttpResponse& response) {
    if (response.isSuccess())
        return {};
    const int status = static_cast<int>(response.status);
    const auto inBrackets = " (" + std::to_string(status) + ")";
    const auto error = parseJson(response.body).and_then(decodeGraphError);
    if (!error)
        return failure(domain, status, "Lỗi kết nối" + inBrackets + ".");
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return failure(
        domain, static_cast<int>(std::clamp(error->code.value_or(status), -most, most)),
        error->message.value_or("Lỗi Graph API" + inBrackets));
}

/// The error of an answer that is no success. Its message never holds the token, even when the
/// server echoes it.
Error errorOf(const Result<HttpResponse>& response, const SecretText& token) {
    Error error = response.and_then(checkHTTPResponse).error();
    if (error.domain == "HTTP" && error.code == HttpClient::invalidUrl)
        error = Error{domain, 400, "Invalid URL"};
    if (error.domain == "HTTP" && error.code == HttpClient::notHttp)
        error = Error{domain, 500, "Phản hồi không hợp lệ."};
    error.message = shownPart(redacted(error.message, token));
    return error;
}

/// Waits for the answer and tells success from failure.
Task<Result<std::string>> bodyOf(Task<Result<HttpResponse>> sending, SecretText token) {
    auto response = co_await std::move(sending);
    if (response && response->isSuccess())
        co_return std::move(response->body);
    auto work = [response = std::move(response), token] { return errorOf(response, token); };
    auto explaining = inBackground(std::move(work)); // The body may be a long one.
    co_return tl::unexpected<Error>(co_await std::move(explaining));
}

template <typename Value>
Task<Result<Value>>
decoded(Task<Result<std::string>> receiving, Result<Value> (*decode)(const nlohmann::json&)) {
    auto body = co_await std::move(receiving);
    if (!body)
        co_return tl::unexpected<Error>(body.error());
    auto decoding = decodedAnswer(std::move(*body), decode);
    co_return co_await std::move(decoding);
}

} // namespace

MetaGraphClient::MetaGraphClient(
    std::string graphBaseURL, SecretText pageToken, const std::optional<Account>& account,
    AccountRoutes& routes)
    : graphBaseURL_(std::move(graphBaseURL)),
      pageToken_(std::move(pageToken)),
      route_(routes.of(account)) {}

std::string MetaGraphClient::addressOf(const std::string& path) const {
    return graphBaseURL_ + path + encodedForQuery(pageToken_);
}

Task<Result<std::string>> MetaGraphClient::get(const std::string& path) {
    return bodyOf(route_->http.send({.url = addressOf(path)}), pageToken_);
}

Task<Result<PageInfo>> MetaGraphClient::fetchPageInfo() {
    if (cachedPageInfo_)
        co_return *cachedPageInfo_;
    const auto alive = lifetime_.watch();
    const auto info =
        co_await decoded(get("/me?fields=id,name,picture&access_token="), &decodePageInfo);
    if (info && alive)
        cachedPageInfo_ = *info;
    co_return info;
}

Task<Result<MetaGraphClient::ManagedPages>> MetaGraphClient::fetchManagedPages(std::string after) {
    std::string path = "/me/accounts?fields=id,name,access_token,picture";
    // The answer's own address of the next part is never used: it may lead to another host.
    if (!after.empty())
        path += std::string("&after=") +
                GCharPtr(g_uri_escape_string(after.c_str(), nullptr, FALSE)).get();
    return decoded(get(path + "&access_token="), &decodeManagedPages);
}

Task<Result<std::string>> MetaGraphClient::fetchCustomerAvatarData(PageId customerId) {
    const auto address = addressOf("/" + customerId.text + "/picture?type=normal&access_token=");
    return bodyOf(route_->pictures.fetch(address), pageToken_);
}

} // namespace tessaro
