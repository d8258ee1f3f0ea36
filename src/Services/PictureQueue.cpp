#include "Services/PictureQueue.h"

#include "Platform/HttpClient.h"

#include <chrono>
#include <map>
#include <utility>
#include <vector>

namespace tessaro {

namespace {

using Time = std::chrono::steady_clock;

/// Fewer than the connections of an HttpClient.
constexpr int places = 6;
constexpr auto failuresAreKept = std::chrono::minutes(1);

/// An answer that may be given again for its address.
struct Known {
    std::weak_ptr<const Result<HttpResponse>> answer;
    PictureQueue::Answer failure; ///< Keeps a failure alive.
    Time::time_point since;

    bool isOutdated() const {
        return answer.expired() || (failure && Time::now() - since > failuresAreKept);
    }
};

} // namespace

/// A download, and the coroutines that wait for it.
struct PictureQueue::Download {
    Answer answer;
    std::vector<std::coroutine_handle<>> waiting;

    // The awaiter is an object of its own: GCC 12 copies one that is a variable.
    auto operator co_await() {
        struct Awaiter {
            Download& download;
            bool await_ready() const { return download.answer != nullptr; }
            void await_suspend(std::coroutine_handle<> handle) {
                download.waiting.push_back(handle);
            }
            Answer await_resume() const { return download.answer; }
        };
        return Awaiter{*this};
    }
};

struct PictureQueue::State {
    HttpClient http;
    int workers = 0;
    std::vector<std::string> stack{}; ///< The addresses that nobody works on yet.
    std::map<std::string, std::shared_ptr<Download>> downloads{};
    std::map<std::string, Known> known{};
};

PictureQueue::PictureQueue(HttpClient http)
    : state_(std::make_shared<State>(State{.http = std::move(http)})) {}

Task<Result<HttpResponse>> PictureQueue::fetch(std::string url) {
    auto joining = join(state_, std::move(url));
    const Answer answer = co_await std::move(joining);
    co_return *answer;
}

Task<PictureQueue::Answer> PictureQueue::fetchOnce(std::string url) {
    const auto known = state_->known.find(url);
    if (known != state_->known.end() && !known->second.isOutdated())
        co_return known->second.answer.lock();
    auto joining = join(state_, std::move(url));
    co_return co_await std::move(joining);
}

Task<PictureQueue::Answer> PictureQueue::join(std::shared_ptr<State> state, std::string url) {
    auto& entry = state->downloads[url];
    const bool isNew = !entry;
    if (isNew)
        entry = std::make_shared<Download>();
    const auto download = entry;
    if (std::erase(state->stack, url) > 0 || isNew)
        state->stack.push_back(std::move(url));
    if (state->workers < places)
        work(state).detach();
    co_return co_await *download;
}

Task<void> PictureQueue::work(std::shared_ptr<State> state) {
    ++state->workers;
    while (!state->stack.empty()) {
        const std::string url = std::move(state->stack.back());
        state->stack.pop_back();
        HttpRequest request{.url = url};
        auto sending = state->http.send(std::move(request));
        auto response = co_await std::move(sending);
        const bool isFailure = !response || !response->isSuccess();
        const auto answer = std::make_shared<const Result<HttpResponse>>(std::move(response));
        std::erase_if(state->known, [](const auto& entry) { return entry.second.isOutdated(); });
        state->known[url] = {answer, isFailure ? answer : nullptr, Time::now()};
        const auto download = state->downloads.extract(url).mapped();
        download->answer = answer;
        for (const auto waiting : download->waiting)
            waiting.resume();
    }
    --state->workers;
}

} // namespace tessaro
