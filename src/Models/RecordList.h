#pragma once

#include "Platform/JsonReader.h"

#include <string>
#include <string_view>
#include <vector>

/// The form of every record file: one JSON array of records.
namespace tessaro {

namespace detail {
/// Appends the only record of `list` to `text`, which starts with a bracket.
void appendRecord(std::string& text, const nlohmann::json& list);
} // namespace detail

/// The text of one array, pretty-printed, the members of every object in ascending byte order of
/// their keys. Bytes that are not UTF-8 become U+FFFD.
template <typename Record>
std::string encodeList(const std::vector<Record>& records) {
    std::string text = "[";
    // One record at a time, because a tree of the whole list would be the largest cost of a save.
    // It stands in a list of its own, so that it is indented as in the whole one.
    auto list = nlohmann::json::array({nullptr});
    for (const auto& record : records) {
        to_json(list[0], record);
        detail::appendRecord(text, list);
    }
    return text + (records.empty() ? "]" : "\n]");
}

/// One record that does not decode fails the whole list.
/// @param decode  the record's own decoding function
template <typename Record>
Result<std::vector<Record>>
decodeList(std::string_view bytes, Result<Record> (*decode)(const nlohmann::json&)) {
    std::vector<Record> records;
    const auto error = forEachInJsonArray(bytes, [&](const nlohmann::json& value) {
        auto record = decode(value);
        if (!record)
            return std::optional(record.error());
        records.push_back(std::move(*record));
        return std::optional<Error>();
    });
    if (error)
        return tl::unexpected<Error>(*error);
    return records;
}

} // namespace tessaro
