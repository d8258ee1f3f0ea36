#include "FuzzTarget.h"

#include "Models/Account.h"
#include "Models/PageConfig.h"
#include "Models/RecordList.h"

using namespace tessaro;

namespace {

/// A list that can be read is written such that reading and writing it again changes nothing.
template <typename Record>
void readAndWrite(std::string_view bytes, Result<Record> (*decode)(const nlohmann::json&)) {
    const auto records = decodeList(bytes, decode);
    if (!records)
        return;
    const auto written = encodeList(*records);
    const auto again = decodeList(written, decode);
    test::require(again && again->size() == records->size() && encodeList(*again) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    readAndWrite(test::asText(data, size), &decodeAccount);
    readAndWrite(test::asText(data, size), &decodePageConfig);
    return 0;
}
