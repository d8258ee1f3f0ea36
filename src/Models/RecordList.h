#pragma once

#include "Platform/JsonReader.h"

#include <string>
#include <string_view>
#include <vector>

/// The form of every record file: one JSON array of records.
namespace tessaro {

/// Pretty-printed, the members of every object in ascending byte order of their keys. Bytes that
/// are not UTF-8 become U+FFFD.
std::string writeJson(const nlohmann::json& value);

template <typename Record>
std::string encodeList(const std::vector<Record>& records) {
    auto array = nlohmann::json::array();
    for (const auto& record : records)
        array.push_back(encode(record));
    return writeJson(array);
}

/// One record that does not decode fails the whole list.
/// @param decode  the record's own decoding function
template <typename Record>
Result<std::vector<Record>>
decodeList(std::string_view bytes, Result<Record> (*decode)(const nlohmann::json&)) {
    const auto array = parseJson(bytes);
    if (!array)
        return tl::unexpected<Error>(array.error());
    if (!array->is_array())
        return failure("JSON", 0, "Dữ liệu không phải là một danh sách JSON.");
    std::vector<Record> records;
    records.reserve(array->size());
    for (const auto& value : *array) {
        auto record = decode(value);
        if (!record)
            return tl::unexpected<Error>(record.error());
        records.push_back(std::move(*record));
    }
    return records;
}

} // namespace tessaro
