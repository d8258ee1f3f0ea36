#pragma once

#include "Platform/HttpClient.h"

#include <memory>
#include <string>

namespace tessaro {

/// The pictures that are asked for by one route. Six at a time, so that a person's own request
/// always finds a connection. What was asked for last comes first: it is what is on screen now.
///
/// No address is asked for twice at a time: whoever asks for a picture that is under way waits for
/// the same answer. Copies are the same queue. UI thread.
class PictureQueue {
public:
    /// An answer that several may hold.
    using Answer = std::shared_ptr<const Result<HttpResponse>>;

    explicit PictureQueue(HttpClient http);

    /// Asks for the picture at that address.
    Task<Result<HttpResponse>> fetch(std::string url);
    /// The same for who only wants to show it, and is content with an answer that somebody still
    /// holds, or with a failure of the last minute.
    Task<Answer> fetchOnce(std::string url);

private:
    struct Download;
    struct State;
    static Task<void> work(std::shared_ptr<State> state);
    static Task<Answer> join(std::shared_ptr<State> state, std::string url);

    std::shared_ptr<State> state_;
};

} // namespace tessaro
