#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <random>

using namespace tessaro;
using test::makeAccount, test::makePage;

namespace {

/// What the process reports of its saves before it is killed.
struct Progress {
    std::atomic<std::size_t> begun{0};
    std::atomic<std::size_t> finished{0};
};

/// Save number n writes n accounts and n Pages.
[[noreturn]] void saveGrowingLists(DataStore& store, std::size_t last, Progress& progress) {
    for (std::size_t number = last + 1;; ++number) {
        const auto account = makeAccount("Tài khoản " + std::to_string(number));
        progress.begun = number;
        store.saveAccounts(std::vector(number, account));
        store.savePages(std::vector(number, makePage(account, std::to_string(number))));
        progress.finished = number;
    }
}

std::size_t temporaryFiles(const std::filesystem::path& folder) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        count += entry.path().extension() != ".json";
    return count;
}

/// How often the process is killed; script/soak asks for more.
int killsWanted() {
    const char* wanted = std::getenv("TESSARO_KILLS");
    return wanted ? std::atoi(wanted) : 40;
}

} // namespace

TEST(SaveKill, LeavesTheListsBeforeOrAfterAndNothingElse) {
    auto* shared =
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    auto& progress = *new (shared) Progress;
    test::StoreWorld world;
    std::mt19937 random(std::random_device{}());
    int left = 0;
    std::size_t last = 0;
    const int kills = killsWanted();
    for (int kill = 0; kill < kills; ++kill) {
        // Writing short lists takes longer than encoding them, so most kills interrupt a write.
        if (last > 30) {
            last = 0;
            std::filesystem::remove_all(world.records);
        }
        progress.begun = progress.finished = last;
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0) {
            auto store = world.newStore();
            saveGrowingLists(store, last, progress);
        }
        while (progress.finished == last)
            usleep(100);
        usleep(static_cast<useconds_t>(random() % 3000));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);

        const auto stale = temporaryFiles(world.records);
        EXPECT_LE(stale, 1u);
        left += stale > 0;
        auto store = world.newStore();
        EXPECT_EQ(temporaryFiles(world.records), 0u);
        const auto accounts = store.loadAccounts();
        const auto pages = store.loadPages();
        for (const auto size : {accounts.size(), pages.size()}) {
            EXPECT_GE(size, progress.finished);
            EXPECT_LE(size, progress.begun);
        }
        EXPECT_EQ(accounts.back().name, "Tài khoản " + std::to_string(accounts.size()));
        EXPECT_EQ(pages.back().pageId.text, std::to_string(pages.size()));
        last = progress.begun;
    }
    std::cout << kills << " kills, " << left << " of them left a temporary file" << std::endl;
    EXPECT_GT(left, 0) << "no kill came in the middle of a save";
    munmap(shared, sizeof(Progress));
}
