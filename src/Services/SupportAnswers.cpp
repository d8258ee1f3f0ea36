#include "Services/SupportAnswers.h"

#include "Platform/JsonReader.h"

namespace tessaro {

Result<UpdateInfo> decodeUpdateInfo(const nlohmann::json& value) {
    JsonReader reader(value);
    UpdateInfo info{reader.text("version"), reader.text("url"), reader.text("notes")};
    return reader.finish(std::move(info));
}

Result<SimpleResponse> decodeSimpleResponse(const nlohmann::json& value) {
    JsonReader reader(value);
    SimpleResponse response{reader.boolean("success"), reader.optionalText("message")};
    return reader.finish(std::move(response));
}

Result<APIErrorResponse> decodeAPIErrorResponse(const nlohmann::json& value) {
    JsonReader reader(value);
    APIErrorResponse response{reader.optionalText("error"), reader.optionalText("message")};
    return reader.finish(std::move(response));
}

} // namespace tessaro
