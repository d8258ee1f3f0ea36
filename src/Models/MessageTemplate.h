#pragma once

#include "Platform/Result.h"

#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <string>

namespace tessaro {

/// A canned reply. It has no identifier: it is compared and hashed by both texts.
struct MessageTemplate {
    std::string title;
    std::string content;

    bool operator==(const MessageTemplate&) const = default;
};

void to_json(nlohmann::json& object, const MessageTemplate& message);
/// Both members are required texts; unknown members are ignored.
Result<MessageTemplate> decodeMessageTemplate(const nlohmann::json& value);

} // namespace tessaro

template <>
struct std::hash<tessaro::MessageTemplate> {
    std::size_t operator()(const tessaro::MessageTemplate& message) const noexcept;
};
