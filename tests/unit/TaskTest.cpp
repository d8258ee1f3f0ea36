#include "Platform/Task.h"

#include "Platform/AsyncSemaphore.h"
#include "Platform/Clock.h"
#include "Platform/Lifetime.h"
#include "support/MainLoop.h"

#include <gtest/gtest.h>

using namespace tessaro;

namespace {

Task<int> immediate(int answer) {
    co_return answer;
}

Task<int> viaIdleCall(int answer) {
    co_await AsyncCall(
        [](GAsyncReadyCallback ready, gpointer data) {
            const auto task = GObjectPtr<GTask>::adopt(g_task_new(nullptr, nullptr, ready, data));
            g_task_return_boolean(task.get(), TRUE);
        },
        [](GObject*, GAsyncResult* result) {
            return g_task_propagate_boolean(reinterpret_cast<GTask*>(result), nullptr);
        });
    co_return answer;
}

Task<int> sum() {
    const int first = co_await immediate(1);
    const int second = co_await viaIdleCall(2);
    co_return first + second;
}

struct Owner {
    int* touched;
    Lifetime lifetime;

    Task<void> work() {
        const auto alive = lifetime.watch();
        co_await viaIdleCall(0);
        if (!alive)
            co_return;
        ++*touched;
    }
};

Task<void> holdPlace(AsyncSemaphore semaphore, int* running, int* most, int* done) {
    const auto place = co_await semaphore.acquire();
    *most = std::max(*most, ++*running);
    co_await viaIdleCall(0);
    --*running;
    ++*done;
}

} // namespace

TEST(Task, YieldsTheSumOfAFinishedAndASuspendedCall) {
    EXPECT_EQ(test::await(sum()), 3);
}

TEST(Task, DoesNotTouchAnOwnerThatIsGone) {
    int touched = 0;
    {
        Owner owner{&touched, {}};
        owner.work().detach();
    }
    Owner survivor{&touched, {}};
    auto task = survivor.work();
    EXPECT_TRUE(test::runUntil([&] { return task.isDone(); }));
    EXPECT_EQ(touched, 1);
}

TEST(AsyncSemaphore, NeverLetsMoreThanItsPlacesIn) {
    int running = 0, most = 0, done = 0;
    const AsyncSemaphore semaphore(6);
    for (int i = 0; i < 500; ++i)
        holdPlace(semaphore, &running, &most, &done).detach();
    EXPECT_TRUE(test::runUntil([&] { return done == 500; }));
    EXPECT_EQ(most, 6);
}
