#include "Services/GraphAnswers.h"

#include "FuzzTarget.h"

#include "Platform/JsonReader.h"

using namespace tessaro;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto value = parseJson(test::asText(data, size));
    if (!value)
        return 0;
    decodePageInfo(*value);
    decodeManagedPages(*value);
    decodeGraphError(*value);
    return 0;
}
