#pragma once

#include "Platform/Cancellation.h"
#include "Platform/HttpClient.h"
#include "Platform/ScopedConnection.h"

#include <chrono>
#include <optional>
#include <string>

namespace tessaro {

/// One call of an HttpClient while it is under way: what ends it early, and why. That may be its
/// caller, the time that it may take in all, or what the server sends. UI thread.
class HttpCall {
public:
    /// @param total  counted from now; nothing means no limit
    HttpCall(Cancellation caller, std::optional<std::chrono::milliseconds> total);

    /// What to hand to the C calls.
    GCancellable* cancellable() const { return cancellation_.get(); }

    /// Cancels what is under way; the first reason stays.
    tl::unexpected<Error> end(HttpClient::ErrorCode code, std::string message);
    /// The reason why a C call failed: the one given to end(), else the library's.
    tl::unexpected<Error> failureOf(const GErrorSlot& error) const;

private:
    const Cancellation cancellation_;
    std::optional<Error> reason_;
    ScopedConnection callerCancelled_;
    ScopedConnection timer_;
};

} // namespace tessaro
