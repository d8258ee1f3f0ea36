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

namespace {

/// Where the next part of a list is; empty after the last one. What cannot be read is no failure,
/// because the list itself is whole.
std::string cursorOfNext(const nlohmann::json& value) {
    using Pointer = nlohmann::json::json_pointer;
    static const Pointer next("/paging/next"), after("/paging/cursors/after");
    const bool hasNext = value.contains(next) && value.at(next).is_string();
    return hasNext && value.contains(after) && value.at(after).is_string()
               ? value.at(after).get<std::string>()
               : "";
}

} // namespace

Result<MetaGraphClient::ManagedPages> decodeManagedPages(const nlohmann::json& value) {
    JsonReader reader(value);
    MetaGraphClient::ManagedPages managed{{}, cursorOfNext(value)};
    reader.objects("data", [&](JsonReader page) {
        managed.pages.push_back(
            {.id = PageId{page.text("id")},
             .name = page.text("name"),
             .accessToken = SecretText(page.text("access_token")),
             .avatarUrl =
                 page.optionalObject("picture").optionalObject("data").optionalText("url")});
    });
    return reader.finish(std::move(managed));
}

} // namespace tessaro
