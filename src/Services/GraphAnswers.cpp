#include "Services/GraphAnswers.h"

#include "Platform/JsonReader.h"

namespace tessaro {

using ResolvedPage = MetaGraphClient::ResolvedPage;

namespace {

/// The picture's address; every level may be missing.
std::optional<std::string> readPictureUrl(JsonReader& page) {
    const auto* picture = page.optionalObject("picture");
    if (!picture)
        return std::nullopt;
    JsonReader wrapper(*picture);
    std::optional<std::string> url;
    if (const auto* object = wrapper.optionalObject("data")) {
        JsonReader data(*object);
        url = data.optionalText("url");
        wrapper.adopt(data.error());
    }
    page.adopt(wrapper.error());
    return url;
}

} // namespace

Result<GraphError> decodeGraphError(const nlohmann::json& value) {
    JsonReader wrapper(value);
    GraphError result;
    if (const auto* object = wrapper.optionalObject("error")) {
        JsonReader error(*object);
        result.message = error.optionalText("message");
        error.optionalText("type");
        result.code = error.optionalInteger("code");
        wrapper.adopt(error.error());
    }
    return wrapper.finish(std::move(result));
}

Result<std::vector<ResolvedPage>> decodeManagedPages(const nlohmann::json& value) {
    JsonReader reader(value);
    std::vector<ResolvedPage> pages;
    for (const auto& element : reader.array("data")) {
        JsonReader page(element);
        pages.push_back(
            {.id = PageId{page.text("id")},
             .name = page.text("name"),
             .accessToken = SecretText(page.text("access_token")),
             .avatarUrl = readPictureUrl(page)});
        reader.adopt(page.error());
        if (reader.error())
            break;
    }
    return reader.finish(std::move(pages));
}

} // namespace tessaro
