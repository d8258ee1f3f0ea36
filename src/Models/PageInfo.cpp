#include "Models/PageInfo.h"

#include "Platform/JsonReader.h"

namespace tessaro {

Result<PageInfo> decodePageInfo(const nlohmann::json& value) {
    JsonReader reader(value);
    PageInfo info{.id = PageId{reader.text("id")}, .name = reader.text("name")};
    if (auto picture = reader.optionalObject("picture"))
        info.picture = PagePicture{PagePictureData{picture.object("data").text("url")}};
    return reader.finish(std::move(info));
}

} // namespace tessaro
