#pragma once

#include "Platform/Result.h"
#include "Platform/Task.h"

#include <memory>
#include <string>

namespace tessaro {

class HttpClient;
struct HttpResponse;

/// Downloads the pictures of one route, six at a time, so that other requests always find a
/// connection. The latest request comes first, because its picture is on screen now.
///
/// Requests for the same address at the same time share one download. All copies are the same
/// queue. UI thread.
class PictureQueue {
public:
    /// An answer that several callers can hold.
    using Answer = std::shared_ptr<const Result<HttpResponse>>;

    explicit PictureQueue(HttpClient http);

    /// Downloads the picture at that address.
    Task<Result<HttpResponse>> fetch(std::string url);
    /// Like fetch(), but returns without a download an answer that a caller still holds, or a
    /// failure of the last minute.
    Task<Answer> fetchOnce(std::string url);

private:
    struct Download;
    struct State;
    static Task<void> work(std::shared_ptr<State> state);
    static Task<Answer> join(std::shared_ptr<State> state, std::string url);

    std::shared_ptr<State> state_;
};

} // namespace tessaro
