#pragma once

#include <compare>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// A UUID (RFC 4122) in its canonical upper-case form of 36 characters.
class Uuid {
public:
    /// A new random (version 4) identifier.
    static Uuid random();
    /// Reads the 8-4-4-4-12 form in either case; nothing for any other text.
    static std::optional<Uuid> parse(std::string_view text);

    const std::string& text() const { return text_; }

    auto operator<=>(const Uuid&) const = default;

private:
    explicit Uuid(std::string text) : text_(std::move(text)) {}
    std::string text_;
};

/// A UUID that names one kind of thing, so that one kind cannot be taken for another.
template <typename Tag>
class Identifier {
public:
    explicit Identifier(Uuid uuid) : uuid_(std::move(uuid)) {}
    static Identifier random() { return Identifier(Uuid::random()); }

    const Uuid& uuid() const { return uuid_; }
    const std::string& text() const { return uuid_.text(); }

    auto operator<=>(const Identifier&) const = default;

private:
    Uuid uuid_;
};

} // namespace tessaro

template <>
struct std::hash<tessaro::Uuid> {
    std::size_t operator()(const tessaro::Uuid& uuid) const noexcept {
        return std::hash<std::string>{}(uuid.text());
    }
};

template <typename Tag>
struct std::hash<tessaro::Identifier<Tag>> {
    std::size_t operator()(const tessaro::Identifier<Tag>& id) const noexcept {
        return std::hash<tessaro::Uuid>{}(id.uuid());
    }
};
