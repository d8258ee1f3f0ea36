#include "Models/MessageTemplate.h"

#include "Platform/JsonReader.h"

namespace tessaro {

void to_json(nlohmann::json& object, const MessageTemplate& message) {
    object = {{"title", message.title}, {"content", message.content}};
}

Result<MessageTemplate> decodeMessageTemplate(const nlohmann::json& value) {
    JsonReader reader(value);
    MessageTemplate message{.title = reader.text("title"), .content = reader.text("content")};
    return reader.finish(std::move(message));
}

} // namespace tessaro

std::size_t std::hash<tessaro::MessageTemplate>::operator()(
    const tessaro::MessageTemplate& message) const noexcept {
    return std::hash<nlohmann::json>{}(message);
}
