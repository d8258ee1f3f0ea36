#pragma once

#include "Services/SupportClient.h"

#include <nlohmann/json_fwd.hpp>

/// What the support server answers, read strictly. Any thread.
namespace tessaro {

/// The answer to an upload. It must have this form, but nobody acts on what it says.
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
