#include "RecordsFile.h"

#include "Models/Account.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return tessaro::test::readRecords(tessaro::test::asText(data, size), &tessaro::decodeAccount);
}
