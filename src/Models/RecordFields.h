#pragma once

#include "Platform/DateTime.h"
#include "Platform/JsonReader.h"
#include "Platform/Uuid.h"

/// Reads members of types that JSON does not have.
namespace tessaro {

/// Reads a text that is a UUID. After a failure the result is meaningless.
template <typename Id>
Id readIdentifier(JsonReader& reader, const char* key) {
    if (const auto uuid = Uuid::parse(reader.text(key)))
        return Id(*uuid);
    reader.reject(key);
    return Id(Uuid());
}

/// Reads a text in the form of formatDateTime().
inline TimePoint readDateTime(JsonReader& reader, const char* key) {
    const auto time = parseDateTime(reader.text(key));
    if (!time)
        reader.reject(key);
    return time.value_or(TimePoint());
}

} // namespace tessaro
