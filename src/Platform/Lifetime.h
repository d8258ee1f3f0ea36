#pragma once

#include <memory>

namespace tessaro {

/// Tells a suspended coroutine whether its owner still exists. The owner declares it as its last
/// member. Every coroutine takes a watch before its first await and asks it after each one.
class Lifetime {
public:
    class Watch {
    public:
        explicit operator bool() const { return !token_.expired(); }

    private:
        friend class Lifetime;
        explicit Watch(std::weak_ptr<int> token) : token_(std::move(token)) {}
        std::weak_ptr<int> token_;
    };

    Lifetime() : token_(std::make_shared<int>(0)) {}
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;

    Watch watch() const { return Watch(token_); }

private:
    std::shared_ptr<int> token_;
};

} // namespace tessaro
