#include "Services/GraphAnswers.h"

#include "Platform/JsonReader.h"

namespace tessaro {

Result<GraphError> decodeGraphError(const nlohmann::json& value) {
    JsonReader reader(value);
    auto error = reader.optionalObject("error");
    error.optionalText("type");
    GraphError result{error.optionalText("message"), error.optionalInteger("code")};
    return reader.finish(std::move(result));
}

Result<std::vector<MetaGraphClient::ResolvedPage>> decodeManagedPages(const nlohmann::json& value) {
    JsonReader reader(value);
    std::vector<MetaGraphClient::ResolvedPage> pages;
    reader.objects("data", [&](JsonReader page) {
        pages.push_back(
            {.id = PageId{page.text("id")},
             .name = page.text("name"),
             .accessToken = SecretText(page.text("access_token")),
             .avatarUrl =
                 page.optionalObject("picture").optionalObject("data").optionalText("url")});
    });
    return reader.finish(std::move(pages));
}

} // namespace tessaro
