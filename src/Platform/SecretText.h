#pragma once

#include <string>
#include <utility>

namespace tessaro {

/// An access token or a password. It does not convert to text and cannot be streamed, so that no
/// message contains it by accident. Code that needs the text calls reveal().
class SecretText {
public:
    SecretText() = default;
    explicit SecretText(std::string text) : text_(std::move(text)) {}

    /// The text itself. Only for requests, the record files and the field in which it is edited.
    const std::string& reveal() const { return text_; }
    bool empty() const { return text_.empty(); }

    bool operator==(const SecretText&) const = default;

private:
    std::string text_;
};

} // namespace tessaro
