#include "Platform/JsonReader.h"

#include <limits>

namespace tessaro {

namespace {

// The library's own error texts quote what they stumbled over, which may be a secret.
enum Code { malformed = 1, notAnObject, missing, wrongType };

Error malformedDocument() {
    return {"JSON", malformed, "Dữ liệu không phải là JSON hợp lệ."};
}

Error missingMember(const char* key) {
    return {"JSON", missing, std::string("Dữ liệu thiếu trường \"") + key + "\"."};
}

Error wrongMember(const char* key) {
    return {"JSON", wrongType, std::string("Trường \"") + key + "\" không hợp lệ."};
}

const nlohmann::json nothing;

/// Well beyond anything that the program reads. Each level costs dozens of times its one byte.
constexpr int deepestNesting = 512;

/// Counts brackets outside of texts; what is no JSON at all is left to the parser.
bool isNestedTooDeep(std::string_view text) {
    int depth = 0;
    bool inText = false;
    for (std::size_t i = 0; i < text.size() && depth <= deepestNesting; ++i) {
        const char c = text[i];
        if (inText && c == '\\')
            ++i;
        else if (c == '"')
            inText = !inText;
        else if (!inText && (c == '[' || c == '{'))
            ++depth;
        else if (!inText && (c == ']' || c == '}'))
            --depth;
    }
    return depth > deepestNesting;
}

bool mayBeParsed(std::string_view text) {
    // The library would take a zero byte for the end and not look at what is behind it.
    return text.find('\0') == std::string_view::npos && !isNestedTooDeep(text);
}

/// Whether the value is an integer of 64 bits with a sign.
bool isInteger(const nlohmann::json& value) {
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return value.is_number_unsigned() ? value.get<std::uint64_t>() <= most
                                      : value.is_number_integer();
}

} // namespace

Result<nlohmann::json> parseJson(std::string_view text) {
    if (!mayBeParsed(text))
        return tl::unexpected<Error>(malformedDocument());
    auto value = nlohmann::json::parse(text.begin(), text.end(), nullptr, false);
    if (value.is_discarded())
        return tl::unexpected<Error>(malformedDocument());
    return value;
}

std::optional<Error> forEachInJsonArray(
    std::string_view text,
    const std::function<std::optional<Error>(const nlohmann::json& element)>& handle) {
    if (!mayBeParsed(text))
        return malformedDocument();
    std::optional<Error> failed;
    const auto take = [&](int depth, auto event, nlohmann::json& value) {
        using Event = nlohmann::json::parse_event_t;
        const bool isElement = depth == 1 && (event == Event::value || event == Event::object_end ||
                                              event == Event::array_end);
        if (isElement && !failed)
            failed = handle(value);
        return !isElement; // What is not kept is freed at once.
    };
    const auto rest = nlohmann::json::parse(text.begin(), text.end(), take, false);
    if (failed)
        return failed;
    return rest.is_array() ? std::nullopt : std::optional(malformedDocument());
}

JsonReader::JsonReader(const nlohmann::json& value) {
    if (value.is_object())
        object_ = &value;
    else
        error_ = Error{"JSON", notAnObject, "Dữ liệu không phải là một đối tượng JSON."};
}

const nlohmann::json* JsonReader::find(const char* key) {
    if (!object_)
        return nullptr;
    const auto member = object_->find(key);
    return member == object_->end() || member->is_null() ? nullptr : &*member;
}

const nlohmann::json* JsonReader::require(const char* key) {
    const auto* member = find(key);
    if (!member)
        adopt(missingMember(key));
    return member;
}

void JsonReader::reject(const char* key) {
    adopt(wrongMember(key));
}

void JsonReader::adopt(const std::optional<Error>& nested) {
    if (!error_)
        error_ = nested;
}

std::string JsonReader::text(const char* key) {
    const auto* member = require(key);
    if (member && !member->is_string())
        reject(key);
    return member && member->is_string() ? member->get_ref<const std::string&>() : "";
}

std::int64_t JsonReader::integer(const char* key) {
    return require(key) ? optionalInteger(key).value_or(0) : 0;
}

bool JsonReader::boolean(const char* key) {
    const auto* member = require(key);
    if (member && !member->is_boolean())
        reject(key);
    return member && member->is_boolean() && member->get<bool>();
}

const nlohmann::json& JsonReader::array(const char* key) {
    const auto* member = require(key) ? optionalArray(key) : nullptr;
    return member ? *member : nothing;
}

const nlohmann::json& JsonReader::object(const char* key) {
    const auto* member = require(key) ? optionalObject(key) : nullptr;
    return member ? *member : nothing;
}

std::optional<std::string> JsonReader::optionalText(const char* key) {
    const auto* member = find(key);
    if (!member)
        return std::nullopt;
    if (!member->is_string()) {
        reject(key);
        return std::nullopt;
    }
    return member->get_ref<const std::string&>();
}

std::optional<std::int64_t> JsonReader::optionalInteger(const char* key) {
    const auto* member = find(key);
    if (!member)
        return std::nullopt;
    if (!isInteger(*member)) {
        reject(key);
        return std::nullopt;
    }
    return member->get<std::int64_t>();
}

const nlohmann::json* JsonReader::optionalObject(const char* key) {
    const auto* member = find(key);
    if (!member || member->is_object())
        return member;
    reject(key);
    return nullptr;
}

const nlohmann::json* JsonReader::optionalArray(const char* key) {
    const auto* member = find(key);
    if (!member || member->is_array())
        return member;
    reject(key);
    return nullptr;
}

} // namespace tessaro
