#pragma once

#include "Services/MetaGraphClient.h"

#include <nlohmann/json_fwd.hpp>

/// Reads the answers of the Graph API strictly. Any thread.
namespace tessaro {

/// The details of an answer that reports a failure.
struct GraphError {
    std::optional<std::string> message;
    std::optional<std::int64_t> code;
};

Result<GraphError> decodeGraphError(const nlohmann::json& value);

/// The Pages that a user token manages. One malformed Page makes the whole list fail.
Result<MetaGraphClient::ManagedPages> decodeManagedPages(const nlohmann::json& value);

} // namespace tessaro
