#pragma once

#include "Platform/Background.h"
#include "Platform/JsonReader.h"
#include "Platform/Text.h"

#include <string>
#include <utility>

namespace tessaro {

/// Decodes the body of an answer in the background, because the largest one would block the window.
template <typename Value>
Task<Result<Value>>
decodedAnswer(std::string body, Result<Value> (*decode)(const nlohmann::json&)) {
    return inBackground(
        [body = std::move(body), decode] { return parseJson(body).and_then(decode); });
}

/// The beginning of a server's message, as much as a screen can show. A label with megabytes of
/// text would block the window. Any thread.
inline std::string shownPart(std::string message) {
    constexpr std::size_t longest = 8 * 1024;
    return message.size() <= longest ? message : toValidUtf8(message.substr(0, longest)) + "…";
}

} // namespace tessaro
