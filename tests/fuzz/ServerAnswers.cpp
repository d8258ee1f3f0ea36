#include "FuzzTarget.h"

#include "Platform/JsonReader.h"
#include "Services/GraphAnswers.h"
#include "Services/SupportAnswers.h"

using namespace tessaro;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto value = parseJson(test::asText(data, size));
    if (!value)
        return 0;
    decodePageInfo(*value);
    decodeManagedPages(*value);
    decodeGraphError(*value);
    decodeUpdateInfo(*value);
    decodeSimpleResponse(*value);
    decodeAPIErrorResponse(*value);
    return 0;
}
