#include "Models/CustomerProfile.h"

#include "Platform/JsonReader.h"

namespace tessaro {

namespace {

std::optional<std::vector<std::string>> readTags(JsonReader& reader) {
    const auto* array = reader.optionalArray("tags");
    if (!array)
        return std::nullopt;
    std::vector<std::string> tags;
    for (const auto& tag : *array) {
        if (!tag.is_string()) {
            reader.reject("tags");
            return std::nullopt;
        }
        tags.push_back(tag.get<std::string>());
    }
    return tags;
}

} // namespace

void to_json(nlohmann::json& object, const CustomerProfile& profile) {
    object = {{"id", profile.id}};
    const auto write = [&](const char* key, const auto& value) {
        if (value)
            object[key] = *value;
    };
    write("name", profile.name);
    write("phone", profile.phone);
    write("email", profile.email);
    write("birthday", profile.birthday);
    write("address", profile.address);
    write("notes", profile.notes);
    write("tags", profile.tags);
}

Result<CustomerProfile> decodeCustomerProfile(const nlohmann::json& value) {
    JsonReader reader(value);
    CustomerProfile profile{
        .id = reader.text("id"),
        .name = reader.optionalText("name"),
        .phone = reader.optionalText("phone"),
        .email = reader.optionalText("email"),
        .birthday = reader.optionalText("birthday"),
        .address = reader.optionalText("address"),
        .notes = reader.optionalText("notes"),
        .tags = readTags(reader),
    };
    return reader.finish(std::move(profile));
}

} // namespace tessaro

std::size_t std::hash<tessaro::CustomerProfile>::operator()(
    const tessaro::CustomerProfile& profile) const noexcept {
    return std::hash<nlohmann::json>{}(profile);
}
