#pragma once

#include <tl/expected.hpp>

#include <string>
#include <utility>

namespace tessaro {

/// An expected failure: the component that failed, a number, and a sentence for the user. The
/// message never holds an access token, a proxy password or an address with a query.
struct Error {
    std::string domain; ///< Which component failed: "MetaGraph", "SupportClient", "HTTP", "JSON" …
    int code = 0;       ///< The domain's own number, for example an HTTP status.
    std::string message; ///< Shown as it stands.

    bool operator==(const Error&) const = default;
};

/// A value, or the reason why there is none.
template <typename T>
using Result = tl::expected<T, Error>;

/// Makes the failed side of a Result.
inline tl::unexpected<Error> failure(std::string domain, int code, std::string message) {
    return tl::unexpected<Error>(Error{std::move(domain), code, std::move(message)});
}

} // namespace tessaro
