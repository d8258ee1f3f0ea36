#include "Services/SupportAnswers.h"

#include "FuzzTarget.h"

#include "Platform/JsonReader.h"

using namespace tessaro;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto value = parseJson(test::asText(data, size));
    if (!value)
        return 0;
    decodeSupportAnswer<UpdateInfo>(*value);
    decodeSupportAnswer<SimpleResponse>(*value);
    decodeSupportAnswer<APIErrorResponse>(*value);
    return 0;
}
