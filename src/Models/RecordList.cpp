#include "Models/RecordList.h"

namespace tessaro {

void detail::appendRecord(std::string& text, const nlohmann::json& list) {
    constexpr int indent = 2;
    constexpr std::string_view opening = "[\n", closing = "\n]";
    const auto record = list.dump(indent, ' ', false, nlohmann::json::error_handler_t::replace);
    text += text.size() == 1 ? "\n" : ",\n";
    text.append(record, opening.size(), record.size() - opening.size() - closing.size());
}

} // namespace tessaro
