#include "FuzzTarget.h"

#include "Models/Account.h"
#include "Models/RecordList.h"

using namespace tessaro;

/// A list that was read is written so that it reads and writes the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto records = decodeList(test::asText(data, size), &decodeAccount);
    if (!records)
        return 0;
    const auto written = encodeList(*records);
    const auto again = decodeList(written, &decodeAccount);
    test::require(again && again->size() == records->size() && encodeList(*again) == written);
    return 0;
}
