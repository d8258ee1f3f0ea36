#pragma once

#include "Platform/DateTime.h"
#include "Platform/JsonReader.h"
#include "Platform/Uuid.h"

/// How records read the members that JSON has no type for.
namespace tessaro {

/// A UUID in a text, as an Identifier. After a failure the result is of no use.
template <typename Id>
Id readIdentifier(JsonReader& reader, const char* key) {
    if (const auto uuid = Uuid::parse(reader.text(key)))
        return Id(*uuid);
    reader.reject(key);
    return Id(Uuid());
}

/// A date-time in a text, in the form of formatDateTime().
inline TimePoint readDateTime(JsonReader& reader, const char* key) {
    const auto time = parseDateTime(reader.text(key));
    if (!time)
        reader.reject(key);
    return time.value_or(TimePoint());
}

} // namespace tessaro
