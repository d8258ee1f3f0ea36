#pragma once

#include "Platform/Result.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Strict reading of JSON (RFC 8259). Failures have the domain "JSON" and name the member. They
/// never show its value, which may be a secret.
namespace tessaro {

/// Parses one document. It refuses more than 512 levels of nesting, because each level takes dozens
/// of times its one byte in memory.
Result<nlohmann::json> parseJson(std::string_view text);

/// Parses a document that must be an array. Each element is dropped after the call that hands it
/// out, so that a long array never lies in memory as a tree.
/// @param handle  called for each element until it fails once
/// @return the failure of `handle`, else that of the document; nothing when all went well. Elements
///         before a fault in the document have been handed out.
std::optional<Error> forEachInJsonArray(
    std::string_view text,
    const std::function<std::optional<Error>(const nlohmann::json& element)>& handle);

/// Reads the members of one JSON object, and of the objects in it. The first failure sticks,
/// wherever it is: read every member, then call finish() of the outermost reader once.
class JsonReader {
public:
    /// A failure unless `value` is an object. The value must outlive the reader.
    explicit JsonReader(const nlohmann::json& value);

    std::string text(const char* key);
    std::int64_t integer(const char* key); ///< A float, or a number beyond 64 bits, is a failure.
    bool boolean(const char* key);
    /// A reader of the member, which must be an object.
    JsonReader object(const char* key);
    /// Calls `read` for each element of the member, which must be an array of objects. Stops after
    /// a failure.
    void objects(const char* key, const std::function<void(JsonReader element)>& read);

    /// Missing and null are absent; another type is a failure.
    std::optional<std::string> optionalText(const char* key);
    std::optional<std::int64_t> optionalInteger(const char* key);
    std::optional<std::vector<std::string>> optionalTexts(const char* key);
    /// A reader to which every member is absent when this one is missing or null.
    JsonReader optionalObject(const char* key);

    /// Whether there is an object to read.
    explicit operator bool() const { return object_ != nullptr; }

    /// Marks the member as malformed. For a text that is no valid UUID, date or the like.
    void reject(const char* key);

    /// The value, or the failure that stuck.
    template <typename T>
    Result<T> finish(T value) const {
        if (*error_)
            return tl::unexpected<Error>(**error_);
        return value;
    }

private:
    using SharedError = std::shared_ptr<std::optional<Error>>;

    JsonReader(const nlohmann::json* object, SharedError error);
    /// Null when the member is absent, or is not of the type that `hasType` asks for.
    template <typename Check>
    const nlohmann::json* find(const char* key, bool isRequired, Check hasType);
    void fail(Error error);

    const nlohmann::json* object_;
    SharedError error_; ///< Of all readers of one outermost object.
};

} // namespace tessaro
