#include "Models/RecordList.h"

namespace tessaro {

std::string writeJson(const nlohmann::json& value) {
    return value.dump(2, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace tessaro
