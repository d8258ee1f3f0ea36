#include "Platform/JsonReader.h"

#include <limits>
#include <vector>

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
constexpr std::size_t deepestNesting = 512;

using ElementHandler = std::function<std::optional<Error>(const nlohmann::json&)>;

/// Builds the tree that the parser's events tell of. With a handler the document must be an array,
/// whose elements are handed over and dropped as soon as each is complete.
class TreeBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit TreeBuilder(const ElementHandler* handler = nullptr) : handler_(handler) {}

    bool parse(std::string_view text) {
        // The library would take a zero byte for the end and not look at what is behind it.
        return text.find('\0') == std::string_view::npos &&
               nlohmann::json::sax_parse(text.begin(), text.end(), this);
    }
    nlohmann::json& root() { return root_; }
    const std::optional<Error>& handlerError() const { return handlerError_; }

    bool null() override { return add(nullptr) && complete(); }
    bool boolean(bool value) override { return add(value) && complete(); }
    bool number_integer(std::int64_t value) override { return add(value) && complete(); }
    bool number_unsigned(std::uint64_t value) override { return add(value) && complete(); }
    bool number_float(double value, const std::string&) override {
        return add(value) && complete();
    }
    bool string(std::string& value) override { return add(value) && complete(); }
    bool binary(nlohmann::json::binary_t&) override { return false; } // JSON has none.
    bool start_object(std::size_t) override { return open(nlohmann::json::value_t::object); }
    bool start_array(std::size_t) override { return open(nlohmann::json::value_t::array); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(std::string& name) override {
        key_ = name;
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override {
        return false;
    }

private:
    /// Where the value now lies; it stays there while it is open.
    nlohmann::json* add(nlohmann::json value) {
        if (open_.empty())
            return &(root_ = std::move(value));
        if (open_.back()->is_array())
            return &open_.back()->emplace_back(std::move(value));
        return &((*open_.back())[key_] = std::move(value));
    }
    bool open(nlohmann::json::value_t type) {
        if (open_.size() == deepestNesting)
            return false;
        open_.push_back(add(type));
        return !handler_ || root_.is_array();
    }
    bool close() {
        open_.pop_back();
        return complete();
    }
    bool complete() {
        if (handler_ && open_.size() == 1) {
            handlerError_ = (*handler_)(root_.back());
            root_.clear();
        }
        return !handlerError_;
    }

    nlohmann::json root_;
    std::vector<nlohmann::json*> open_; ///< The arrays and objects around the next value.
    std::string key_;                   ///< The name of the next value, if it is in an object.
    const ElementHandler* handler_;
    std::optional<Error> handlerError_;
};

/// Whether the value is an integer of 64 bits with a sign.
bool isInteger(const nlohmann::json& value) {
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return value.is_number_unsigned() ? value.get<std::uint64_t>() <= most
                                      : value.is_number_integer();
}

} // namespace

Result<nlohmann::json> parseJson(std::string_view text) {
    TreeBuilder tree;
    if (!tree.parse(text))
        return tl::unexpected<Error>(malformedDocument());
    return std::move(tree.root());
}

std::optional<Error> forEachInJsonArray(
    std::string_view text,
    const std::function<std::optional<Error>(const nlohmann::json& element)>& handle) {
    TreeBuilder elements(&handle);
    if (elements.parse(text) && elements.root().is_array())
        return std::nullopt;
    return elements.handlerError() ? elements.handlerError() : malformedDocument();
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
