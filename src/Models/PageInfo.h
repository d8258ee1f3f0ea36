#pragma once

#include "Models/PageId.h"
#include "Platform/Result.h"

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <string>

namespace tessaro {

struct PagePictureData {
    std::string url;
    bool operator==(const PagePictureData&) const = default;
};

struct PagePicture {
    PagePictureData data;
    bool operator==(const PagePicture&) const = default;
};

/// The Graph API's description of the object that a token belongs to.
struct PageInfo {
    PageId id;
    std::string name;
    std::optional<PagePicture> picture;
    bool operator==(const PageInfo&) const = default;
};

/// A picture that is present must hold its address, or the whole description fails.
Result<PageInfo> decodePageInfo(const nlohmann::json& value);

} // namespace tessaro
