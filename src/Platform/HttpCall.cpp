#include "Platform/HttpCall.h"

#include "Platform/Clock.h"

#include <libsoup/soup.h>

#include <functional>
#include <memory>
#include <utility>

namespace tessaro {

namespace {

constexpr const char* tooSlow = "Yêu cầu đã hết thời gian chờ.";

/// Runs the action on the main loop once the cancellation is asked for. The cancellable's own
/// signal would run it on the canceller's thread.
ScopedConnection onCancelled(const Cancellation& cancellation, std::function<void()> action) {
    const std::shared_ptr<GSource> source(
        g_cancellable_source_new(cancellation.get()), Releaser<g_source_unref>());
    const GCancellableSourceFunc run = [](GCancellable*, gpointer data) noexcept -> gboolean {
        (*static_cast<std::function<void()>*>(data))();
        return G_SOURCE_REMOVE;
    };
    g_source_set_callback(
        source.get(), G_SOURCE_FUNC(run), new std::function<void()>(std::move(action)),
        [](gpointer data) { delete static_cast<std::function<void()>*>(data); });
    g_source_attach(source.get(), nullptr);
    return ScopedConnection([source] { g_source_destroy(source.get()); });
}

} // namespace

HttpCall::HttpCall(Cancellation caller, std::optional<std::chrono::milliseconds> total)
    : callerCancelled_(
          onCancelled(caller, [this] { end(HttpClient::cancelled, "Yêu cầu đã bị hủy."); })) {
    if (total)
        timer_ =
            SystemClock::shared().timer(*total, [this] { end(HttpClient::timedOut, tooSlow); });
}

tl::unexpected<Error> HttpCall::end(HttpClient::ErrorCode code, std::string message) {
    if (!reason_)
        reason_ = Error{"HTTP", code, std::move(message)};
    const tl::unexpected<Error> failure(*reason_);
    // A call that ends at once may take this object with it.
    Cancellation(cancellation_).cancel();
    return failure;
}

tl::unexpected<Error> HttpCall::failureOf(const GErrorSlot& error) const {
    if (reason_)
        return tl::unexpected<Error>(*reason_);
    if (error.matches(G_IO_ERROR, G_IO_ERROR_TIMED_OUT))
        return failure("HTTP", HttpClient::timedOut, tooSlow);
    if (error.matches(G_IO_ERROR, G_IO_ERROR_PARTIAL_INPUT))
        return failure("HTTP", HttpClient::cutShort, error.message());
    if (error.matches(SOUP_SESSION_ERROR, SOUP_SESSION_ERROR_PARSING))
        return failure("HTTP", HttpClient::notHttp, error.message());
    return failure("HTTP", HttpClient::transport, error.message());
}

} // namespace tessaro
