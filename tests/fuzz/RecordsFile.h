#pragma once

#include "FuzzTarget.h"

#include "Models/RecordList.h"

namespace tessaro::test {

/// A list that can be read is written such that reading and writing it again changes nothing.
template <typename Record>
int readRecords(std::string_view bytes, Result<Record> (*decode)(const nlohmann::json&)) {
    const auto records = decodeList(bytes, decode);
    if (!records)
        return 0;
    const auto written = encodeList(*records);
    const auto again = decodeList(written, decode);
    require(again && again->size() == records->size() && encodeList(*again) == written);
    return 0;
}

} // namespace tessaro::test
