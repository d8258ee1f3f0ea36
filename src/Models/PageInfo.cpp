#include "Models/PageInfo.h"

#include "Platform/JsonReader.h"

namespace tessaro {

namespace {

PagePicture readPicture(JsonReader& reader, const nlohmann::json& value) {
    JsonReader picture(value);
    JsonReader data(picture.object("data"));
    PagePicture result{PagePictureData{data.text("url")}};
    reader.adopt(picture.error());
    reader.adopt(data.error());
    return result;
}

} // namespace

Result<PageInfo> decodePageInfo(const nlohmann::json& value) {
    JsonReader reader(value);
    PageInfo info{.id = PageId{reader.text("id")}, .name = reader.text("name")};
    if (const auto* picture = reader.optionalObject("picture"))
        info.picture = readPicture(reader, *picture);
    return reader.finish(std::move(info));
}

} // namespace tessaro
