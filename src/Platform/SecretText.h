#pragma once

#include <string>
#include <utility>

namespace tessaro {

/// An access token or a password. It neither converts to text nor streams, so that no message can
/// be built with it by accident; whoever needs the text says so with reveal().
class SecretText {
public:
    SecretText() = default;
    explicit SecretText(std::string text) : text_(std::move(text)) {}

    /// The text itself: for the wire, the record files and the field in which it is edited, and
    /// for nothing else.
    const std::string& reveal() const { return text_; }
    bool empty() const { return text_.empty(); }

    bool operator==(const SecretText&) const = default;

private:
    std::string text_;
};

} // namespace tessaro
