#include "WalkTest.h"

#include <sys/resource.h>

#include <csignal>

using namespace tessaro;
using namespace tessaro::demo;

namespace {

class FullDisk : public test::WalkTest {
protected:
    ~FullDisk() override { std::signal(SIGXFSZ, before_); }

    /// Forbids the files of the running program to grow, or allows it again. A small file system
    /// would do the same, but making one needs privileges.
    void setFull(bool isFull) {
        const rlimit limit{isFull ? 0 : RLIM_INFINITY, RLIM_INFINITY};
        ASSERT_EQ(prlimit(walk_.processId(), RLIMIT_FSIZE, &limit, nullptr), 0);
    }

    /// The names in accounts.json.
    std::vector<std::string> saved() {
        std::vector<std::string> names;
        for (const auto& account : readRecords(walk_, "accounts.json"))
            names.push_back(account["name"]);
        return names;
    }

    void addAccount(const std::string& name) {
        beginAccount(walk_, name);
        finishAccount(walk_);
        walk_.see(button(name));
    }

    /// Ignores SIGXFSZ, which a file that may not grow would raise. Started programs inherit that.
    void (*before_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

} // namespace

TEST_F(FullDisk, LeavesTheOldListOnDiskAndTheNewOneOnScreenUntilThereIsSpace) {
    using Names = std::vector<std::string>;
    startProgram();
    addAccount("Cửa hàng");
    ASSERT_EQ(saved(), Names{"Cửa hàng"});

    setFull(true);
    addAccount("Đại lý");
    EXPECT_EQ(saved(), Names{"Cửa hàng"});
    for (const auto& entry : std::filesystem::directory_iterator(data_))
        EXPECT_FALSE(entry.path().filename().string().starts_with(".tessaro-")) << entry.path();

    setFull(false);
    addAccount("Chi nhánh");
    EXPECT_EQ(saved(), (Names{"Cửa hàng", "Đại lý", "Chi nhánh"}));
    walk_.closeProgram();
}
