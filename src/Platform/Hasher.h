#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace tessaro {

/// Builds one hash from several values; their order matters.
class Hasher {
public:
    template <typename T>
    Hasher& add(const T& value) {
        hash_ ^= std::hash<T>{}(value) + 0x9e3779b97f4a7c15U + (hash_ << 6) + (hash_ >> 2);
        return *this;
    }
    /// Whether there is a value, and then the value.
    template <typename T>
    Hasher& add(const std::optional<T>& value) {
        add(value.has_value());
        return value ? add(*value) : *this;
    }
    /// The length, and then the elements.
    template <typename T>
    Hasher& add(const std::vector<T>& values) {
        add(values.size());
        for (const auto& value : values)
            add(value);
        return *this;
    }

    std::size_t value() const { return hash_; }

private:
    std::size_t hash_ = 0;
};

} // namespace tessaro
