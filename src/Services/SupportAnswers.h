#pragma once

#include "Services/SupportClient.h"

#include <nlohmann/json_fwd.hpp>

/// Reads the answers of the support server strictly. Any thread.
namespace tessaro {

/// The answer to an upload. It must have this form, but its values are not used.
struct SimpleResponse {
    bool success;
    std::optional<std::string> message;
};

struct APIErrorResponse {
    std::optional<std::string> error;
    std::optional<std::string> message;
};

/// Defined for UpdateInfo and the two above.
template <typename Answer>
Result<Answer> decodeSupportAnswer(const nlohmann::json& value);

template <>
Result<UpdateInfo> decodeSupportAnswer(const nlohmann::json& value);
template <>
Result<SimpleResponse> decodeSupportAnswer(const nlohmann::json& value);
template <>
Result<APIErrorResponse> decodeSupportAnswer(const nlohmann::json& value);

} // namespace tessaro
