#include "Platform/Uuid.h"

#include "Platform/GHandle.h"

#include <algorithm>

namespace tessaro {

Uuid Uuid::random() {
    return *parse(takeString(g_uuid_string_random()));
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    Uuid uuid;
    if (text.size() != uuid.view().size() || !g_uuid_string_is_valid(std::string(text).c_str()))
        return std::nullopt;
    std::ranges::transform(text, uuid.text_.begin(), g_ascii_toupper);
    return uuid;
}

} // namespace tessaro
