#pragma once

#include "Platform/ScopedConnection.h"

#include <sigc++/signal.h>

#include <functional>
#include <utility>

namespace tessaro {

/// A field of a model that calls its observers after every assignment, even of an equal value. UI
/// thread only.
template <typename T>
class Property {
public:
    Property() = default;
    explicit Property(T value) : value_(std::move(value)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    const T& get() const { return value_; }
    const T& operator*() const { return value_; }
    const T* operator->() const { return &value_; }

    /// Replaces the value, then calls the observers. An observer may set the property again.
    void set(T value) {
        value_ = std::move(value);
        changed_.emit();
    }

    /// Calls `observer` after every assignment until the result is dropped; not for the present
    /// value.
    [[nodiscard]] ScopedConnection observe(std::function<void()> observer) const {
        return ScopedConnection(changed_.connect(std::move(observer)));
    }

private:
    T value_{};
    mutable sigc::signal<void()> changed_;
};

} // namespace tessaro
