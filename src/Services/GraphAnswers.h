#pragma once

#include "Services/MetaGraphClient.h"

#include <nlohmann/json_fwd.hpp>

/// What the Graph API answers, read strictly. Any thread.
namespace tessaro {

/// What an answer other than success says about itself.
struct GraphError {
    std::optional<std::string> message;
    std::optional<std::int64_t> code;
};

Result<GraphError> decodeGraphError(const nlohmann::json& value);

/// The Pages that a user token manages. One that is malformed fails the whole list.
Result<std::vector<MetaGraphClient::ResolvedPage>> decodeManagedPages(const nlohmann::json& value);

} // namespace tessaro
