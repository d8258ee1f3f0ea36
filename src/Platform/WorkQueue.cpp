#include "Platform/WorkQueue.h"

#include "Platform/Background.h"

#include <future>
#include <memory>
#include <utility>

namespace tessaro {

namespace {

using Work = std::function<void()>;

void drop(gpointer work) {
    delete static_cast<Work*>(work);
}

void run(gpointer work, gpointer) noexcept {
    detail::handOvers.fetch_add(1);
    (*static_cast<Work*>(work))();
    drop(work);
    detail::handOvers.fetch_add(1);
}

} // namespace

WorkQueue::WorkQueue()
    : pool_(g_thread_pool_new_full(run, nullptr, drop, /*max_threads=*/1, FALSE, nullptr)) {}

void WorkQueue::End::operator()(GThreadPool* pool) const {
    g_thread_pool_free(pool, /*immediate=*/TRUE, /*wait_=*/TRUE);
    detail::handOvers.load();
}

void WorkQueue::post(std::function<void()> work) {
    detail::handOvers.fetch_add(1);
    g_thread_pool_push(pool_.get(), new Work(std::move(work)), nullptr);
}

void WorkQueue::finish(std::chrono::milliseconds limit) {
    const auto reached = std::make_shared<std::promise<void>>();
    post([reached] { reached->set_value(); });
    reached->get_future().wait_for(limit);
}

} // namespace tessaro
