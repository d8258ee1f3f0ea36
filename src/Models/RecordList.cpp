#include "Models/RecordList.h"

namespace tessaro {

// One record at a time: a tree of the whole list would cost more than everything else in a save.
void RecordListWriter::append() {
    constexpr int indent = 2;
    constexpr std::string_view opening = "[\n", closing = "\n]";
    const auto text = list_.dump(indent, ' ', false, nlohmann::json::error_handler_t::replace);
    text_ += text_.size() == 1 ? "\n" : ",\n";
    text_.append(text, opening.size(), text.size() - opening.size() - closing.size());
}

std::string RecordListWriter::finish() && {
    text_ += text_.size() == 1 ? "]" : "\n]";
    return std::move(text_);
}

} // namespace tessaro
