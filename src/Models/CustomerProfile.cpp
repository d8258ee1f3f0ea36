#include "Models/CustomerProfile.h"

#include "Platform/JsonReader.h"

namespace tessaro {

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
        .tags = reader.optionalTexts("tags"),
    };
    return reader.finish(std::move(profile));
}

} // namespace tessaro

std::size_t std::hash<tessaro::CustomerProfile>::operator()(
    const tessaro::CustomerProfile& profile) const noexcept {
    return std::hash<nlohmann::json>{}(profile);
}
