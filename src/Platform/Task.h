#pragma once

#include "Platform/GHandle.h"

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

/// Coroutines over the C libraries' pairs of "…_async" and "…_finish" functions.
///
/// Rules that keep them safe:
///  - a coroutine takes its parameters by value and is never a lambda with captures: both would
///    dangle after the first suspension;
///  - everything resumes on the main loop, so no state needs a lock;
///  - after each await: the call is finished, ask whether it was cancelled and whether the owner
///    is alive (Lifetime), and only then touch the owner;
///  - a call that is out is cancelled (Cancellation), never abandoned: dropping a Task lets its
///    coroutine run to its end unobserved;
///  - an await contains no braced temporary of an aggregate, such as `co_await send({.url = …})`.
///    GCC 12 copies it bitwise and destroys it twice. Put it into a variable first.
namespace tessaro {

namespace detail {

struct TaskPromiseBase {
    std::coroutine_handle<> continuation;
    bool abandoned = false;

    std::suspend_never initial_suspend() noexcept { return {}; }

    struct FinalAwaiter {
        bool await_ready() noexcept { return false; }
        template <typename Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> handle) noexcept {
            const auto next = handle.promise().continuation;
            if (handle.promise().abandoned)
                handle.destroy();
            return next ? next : std::noop_coroutine();
        }
        void await_resume() noexcept {}
    };
    FinalAwaiter final_suspend() noexcept { return {}; }

    /// Failures that can be expected are Result values; anything else is a fault of the program.
    void unhandled_exception() noexcept { std::terminate(); }
};

template <typename T>
struct TaskPromise : TaskPromiseBase {
    std::optional<T> value;
    void return_value(T result) { value.emplace(std::move(result)); }
    T take() { return std::move(*value); }
};

template <>
struct TaskPromise<void> : TaskPromiseBase {
    void return_void() {}
    void take() {}
};

} // namespace detail

/// A running coroutine that ends in a T. It starts at once; awaiting it yields its result.
/// UI thread only.
template <typename T>
class [[nodiscard]] Task {
public:
    struct promise_type : detail::TaskPromise<T> {
        Task get_return_object() {
            return Task(std::coroutine_handle<promise_type>::from_promise(*this));
        }
    };

    Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Task& operator=(Task&& other) noexcept {
        if (this != &other) {
            release();
            handle_ = std::exchange(other.handle_, nullptr);
        }
        return *this;
    }
    ~Task() { release(); }

    /// Lets the coroutine run to its end on its own.
    void detach() && { release(); }

    bool isDone() const { return handle_ && handle_.done(); }

    auto operator co_await() && {
        struct Awaiter {
            std::coroutine_handle<promise_type> handle;
            bool await_ready() { return handle.done(); }
            void await_suspend(std::coroutine_handle<> waiting) {
                handle.promise().continuation = waiting;
            }
            T await_resume() { return handle.promise().take(); }
        };
        return Awaiter{handle_};
    }

private:
    explicit Task(std::coroutine_handle<promise_type> handle) : handle_(handle) {}

    void release() {
        if (auto handle = std::exchange(handle_, nullptr)) {
            if (handle.done())
                handle.destroy();
            else
                handle.promise().abandoned = true;
        }
    }

    std::coroutine_handle<promise_type> handle_;
};

/// Awaits one asynchronous C call.
///
/// `start(GAsyncReadyCallback, gpointer)` begins it; `finish(GObject*, GAsyncResult*)` ends it and
/// makes the value of the await. Both live in the coroutine's frame until the call has ended.
template <typename Start, typename Finish>
class AsyncCall {
public:
    AsyncCall(Start start, Finish finish) : start_(std::move(start)), finish_(std::move(finish)) {}

    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiting) {
        waiting_ = waiting;
        start_(&AsyncCall::onReady, this);
    }
    auto await_resume() { return finish_(source_.get(), result_.get()); }

private:
    static void onReady(GObject* source, GAsyncResult* result, gpointer data) noexcept {
        auto* self = static_cast<AsyncCall*>(data);
        self->source_ = GObjectPtr<GObject>::share(source);
        self->result_ = GObjectPtr<GAsyncResult>::share(result);
        self->waiting_.resume();
    }

    Start start_;
    Finish finish_;
    std::coroutine_handle<> waiting_;
    GObjectPtr<GObject> source_;
    GObjectPtr<GAsyncResult> result_;
};

} // namespace tessaro
