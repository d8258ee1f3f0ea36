#pragma once

#include "Platform/JsonReader.h"

#include <string>
#include <string_view>
#include <vector>

/// The form of every record file: one JSON array of records.
namespace tessaro {

/// Collects records into the text of one array, pretty-printed, the members of every object in
/// ascending byte order of their keys. Bytes that are not UTF-8 become U+FFFD.
class RecordListWriter {
public:
    template <typename Record>
    void add(const Record& record) {
        to_json(list_[0], record);
        append();
    }
    std::string finish() &&;

private:
    void append();

    /// Holds the one record that is being written, so that it is indented as in a list.
    nlohmann::json list_ = nlohmann::json::array({nullptr});
    std::string text_ = "[";
};

template <typename Record>
std::string encodeList(const std::vector<Record>& records) {
    RecordListWriter writer;
    for (const auto& record : records)
        writer.add(record);
    return std::move(writer).finish();
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
