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

Result<UpdateInfo> decodeUpdateInfo(const nlohmann::json& value);
Result<SimpleResponse> decodeSimpleResponse(const nlohmann::json& value);
Result<APIErrorResponse> decodeAPIErrorResponse(const nlohmann::json& value);

} // namespace tessaro
