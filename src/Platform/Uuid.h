#pragma once

#include <array>
#include <compare>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// A UUID (RFC 4122).
class Uuid {
public:
    /// The identifier of which every bit is zero (RFC 4122, 4.1.7).
    Uuid() = default;
    /// A new random (version 4) identifier.
    static Uuid random();
    /// Reads the 8-4-4-4-12 form in either case; nothing for any other text.
    static std::optional<Uuid> parse(std::string_view text);

    /// The canonical form of 36 characters, with upper-case digits.
    std::string text() const { return std::string(view()); }
    std::size_t hash() const noexcept { return std::hash<std::string_view>{}(view()); }

    auto operator<=>(const Uuid&) const = default;

private:
    std::string_view view() const { return {text_.data(), text_.size() - 1}; }

    /// The canonical form and a zero byte.
    std::array<char, 37> text_ = std::to_array("00000000-0000-0000-0000-000000000000");
};

/// A UUID of one kind of thing. The compiler keeps the identifiers of different kinds apart.
template <typename Tag>
class Identifier : Uuid {
public:
    explicit Identifier(Uuid uuid) : Uuid(uuid) {}
    static Identifier random() { return Identifier(Uuid::random()); }

    using Uuid::hash, Uuid::text;

    auto operator<=>(const Identifier&) const = default;
};

} // namespace tessaro

template <typename Tag>
struct std::hash<tessaro::Identifier<Tag>> {
    std::size_t operator()(const tessaro::Identifier<Tag>& id) const noexcept { return id.hash(); }
};
