#pragma once

#include "Platform/HttpClient.h"
#include "support/MainLoop.h"

namespace tessaro::test {

/// What one request of a new client ends in.
inline Result<HttpResponse> send(HttpRequest request, HttpOptions options = {}) {
    HttpClient client(std::move(options));
    return await(client.send(std::move(request)));
}

inline Result<HttpResponse> get(const std::string& url, HttpOptions options = {}) {
    return send({.url = url}, std::move(options));
}

/// 0 for a response.
inline int codeOf(const Result<HttpResponse>& response) {
    return response ? 0 : response.error().code;
}

} // namespace tessaro::test
