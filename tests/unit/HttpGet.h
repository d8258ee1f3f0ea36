#pragma once

#include "Platform/HttpClient.h"
#include "support/MainLoop.h"

namespace tessaro::test {

/// The result of one request by a new client.
inline Result<HttpResponse> send(HttpRequest request, HttpOptions options = {}) {
    HttpClient client(std::move(options));
    return await(client.send(std::move(request)));
}

inline Result<HttpResponse> get(const std::string& url, HttpOptions options = {}) {
    return send({.url = url}, std::move(options));
}

/// The error's code; 0 for a response.
inline int codeOf(const Result<HttpResponse>& response) {
    return response ? 0 : response.error().code;
}

} // namespace tessaro::test
