#include "Platform/JsonReader.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace tessaro {

namespace {

// The library's own error texts quote the document, which may hold secrets.
enum Code { malformed = 1, noObject, missing, wrongType };

Error malformedDocument() {
    return {"JSON", malformed, "Dữ liệu không phải là JSON hợp lệ."};
}

Error notAnObject() {
    return {"JSON", noObject, "Dữ liệu không phải là một đối tượng JSON."};
}

const nlohmann::json nothing;

/// Far more than any document has that the program reads.
constexpr std::size_t deepestNesting = 512;

/// Whether the text is not nested too deeply and holds no zero byte. The library would not look
/// behind a zero byte. The count is right up to the first fault, where the library stops anyway.
bool isReadable(std::string_view text) {
    std::size_t depth = 0;
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\0')
            return false;
        if (c == '"')
            isQuoted = !isQuoted;
        else if (isQuoted)
            i += c == '\\' ? 1 : 0;
        else if ((c == '[' || c == '{') && ++depth > deepestNesting)
            return false;
        else if ((c == ']' || c == '}') && depth > 0)
            --depth;
    }
    return true;
}

/// The document without the values that the filter refuses; a discarded value when malformed.
nlohmann::json
parse(std::string_view text, const nlohmann::json::parser_callback_t& filter = nullptr) {
    return isReadable(text) ? nlohmann::json::parse(text.begin(), text.end(), filter, false)
                            : nlohmann::json(nlohmann::json::value_t::discarded);
}

/// Whether the value is an integer of 64 bits with a sign.
bool isInteger(const nlohmann::json& value) {
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return value.is_number_unsigned() ? value.get<std::uint64_t>() <= most
                                      : value.is_number_integer();
}

bool isArrayOfTexts(const nlohmann::json& value) {
    return value.is_array() &&
           std::ranges::all_of(value, [](const auto& element) { return element.is_string(); });
}

} // namespace

Result<nlohmann::json> parseJson(std::string_view text) {
    auto root = parse(text);
    if (root.is_discarded())
        return tl::unexpected<Error>(malformedDocument());
    return root;
}

std::optional<Error> forEachInJsonArray(
    std::string_view text,
    const std::function<std::optional<Error>(const nlohmann::json& element)>& handle) {
    using Event = nlohmann::json::parse_event_t;
    bool isArray = false;
    std::optional<Error> failed;
    const auto root = parse(text, [&](int depth, Event event, nlohmann::json& value) {
        if (depth == 0)
            isArray = isArray || event == Event::array_start;
        const bool isWhole =
            event == Event::value || event == Event::object_end || event == Event::array_end;
        if (!isArray || depth != 1 || !isWhole)
            return !failed;
        if (!failed)
            failed = handle(value);
        return false;
    });
    if (!failed && !root.is_array())
        failed = malformedDocument();
    return failed;
}

JsonReader::JsonReader(const nlohmann::json& value)
    : JsonReader(value.is_object() ? &value : nullptr, std::make_shared<std::optional<Error>>()) {
    if (!object_)
        fail(notAnObject());
}

JsonReader::JsonReader(const nlohmann::json* object, SharedError error)
    : object_(object), error_(std::move(error)) {}

template <typename Check>
const nlohmann::json* JsonReader::find(const char* key, bool isRequired, Check hasType) {
    if (!object_)
        return nullptr;
    const auto member = object_->find(key);
    if (member == object_->end() || member->is_null()) {
        if (isRequired)
            fail({"JSON", missing, std::string("Dữ liệu thiếu trường \"") + key + "\"."});
        return nullptr;
    }
    if (std::invoke(hasType, *member))
        return &*member;
    reject(key);
    return nullptr;
}

void JsonReader::reject(const char* key) {
    fail({"JSON", wrongType, std::string("Trường \"") + key + "\" không hợp lệ."});
}

void JsonReader::fail(Error error) {
    if (!*error_)
        *error_ = std::move(error);
}

std::string JsonReader::text(const char* key) {
    const auto* member = find(key, true, &nlohmann::json::is_string);
    return member ? member->get<std::string>() : "";
}

std::int64_t JsonReader::integer(const char* key) {
    const auto* member = find(key, true, isInteger);
    return member ? member->get<std::int64_t>() : 0;
}

bool JsonReader::boolean(const char* key) {
    const auto* member = find(key, true, &nlohmann::json::is_boolean);
    return member && member->get<bool>();
}

JsonReader JsonReader::object(const char* key) {
    return {find(key, true, &nlohmann::json::is_object), error_};
}

void JsonReader::objects(const char* key, const std::function<void(JsonReader element)>& read) {
    const auto* member = find(key, true, &nlohmann::json::is_array);
    for (const auto& element : member ? *member : nothing) {
        if (!element.is_object())
            fail(notAnObject());
        if (*error_)
            return;
        read({&element, error_});
    }
}

std::optional<std::string> JsonReader::optionalText(const char* key) {
    const auto* member = find(key, false, &nlohmann::json::is_string);
    return member ? std::optional(member->get<std::string>()) : std::nullopt;
}

std::optional<std::int64_t> JsonReader::optionalInteger(const char* key) {
    const auto* member = find(key, false, isInteger);
    return member ? std::optional(member->get<std::int64_t>()) : std::nullopt;
}

std::optional<std::vector<std::string>> JsonReader::optionalTexts(const char* key) {
    using Texts = std::vector<std::string>;
    const auto* member = find(key, false, isArrayOfTexts);
    return member ? std::optional(member->get<Texts>()) : std::nullopt;
}

JsonReader JsonReader::optionalObject(const char* key) {
    return {find(key, false, &nlohmann::json::is_object), error_};
}

} // namespace tessaro
