#include "Platform/FileStore.h"

#include "Platform/FileName.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <set>

using namespace tessaro;
using std::filesystem::perms;

namespace {

perms modeOf(const std::filesystem::path& path) {
    return std::filesystem::status(path).permissions();
}

/// Sets the umask of this process while the object lives.
class Umask {
public:
    explicit Umask(mode_t mask) : old_(umask(mask)) {}
    ~Umask() { umask(old_); }

private:
    mode_t old_;
};

constexpr auto ownerFile = perms::owner_read | perms::owner_write;
constexpr auto ownerFolder = perms::owner_all;

} // namespace

TEST(FileStore, MakesFilesAndFoldersForTheOwnerAloneWhateverTheUmaskAndTheModeBefore) {
    for (const mode_t mask : {0, 022, 0777}) {
        const test::TempFolder folder;
        const Umask umask(mask);
        ASSERT_TRUE(ensureFolder(folder / "a/b"));
        EXPECT_EQ(modeOf(folder / "a"), ownerFolder);
        EXPECT_EQ(modeOf(folder / "a/b"), ownerFolder);
        for (const std::string& bytes : {std::string("old"), std::string("n\0w", 3)}) {
            ASSERT_TRUE(replaceFile(folder / "a/b/file", bytes));
            EXPECT_EQ(modeOf(folder / "a/b/file"), ownerFile);
            EXPECT_EQ(readFile(folder / "a/b/file"), bytes);
            std::filesystem::permissions(folder / "a/b/file", perms::all);
        }
    }
}

TEST(FileStore, TheNextStartTakesFilesFromOthersAndSweepsOnlyItsOwnTemporaryOnes) {
    test::StoreWorld world;
    const auto elsewhere = world.folder / "elsewhere";
    const auto make = [](const std::filesystem::path& file) {
        std::ofstream(file) << "x";
        std::filesystem::permissions(file, perms::all);
    };
    make(elsewhere);
    const auto folders = {world.records, world.records / "avatars"};
    for (const auto& folder : folders) {
        std::filesystem::create_directories(folder);
        make(folder / ".tessaro-notes");
        std::filesystem::create_symlink(elsewhere, folder / "link");
    }
    world.newStore();
    for (const auto& folder : folders) {
        EXPECT_EQ(modeOf(folder / ".tessaro-notes"), perms::owner_all) << folder;
    }
    EXPECT_EQ(modeOf(elsewhere), perms::all);
}

TEST(FileStore, LocksAFolderForOneAtATimeAndForNobodyWhereThereAreNoLocks) {
    using namespace std::chrono_literals;
    const test::TempFolder folder;
    auto first = lockFolder(folder / "data", 0ms);
    EXPECT_TRUE(first);
    EXPECT_FALSE(lockFolder(folder / "data", 0ms));
    first.reset();
    EXPECT_TRUE(lockFolder(folder / "data", 0ms)) << "the file alone locks nothing";
    // The lock of a process that is ending becomes free in time.
    std::promise<void> locked;
    std::thread ending([&] {
        const auto held = lockFolder(folder / "data", 0ms);
        locked.set_value();
        std::this_thread::sleep_for(50ms);
    });
    locked.get_future().wait();
    EXPECT_TRUE(lockFolder(folder / "data", 30s));
    ending.join();
    ASSERT_TRUE(replaceFile(folder / "file", ""));
    EXPECT_TRUE(lockFolder(folder / "file", 0ms));
}

TEST(FileName, StaysInItsFolderAndTellsEveryTextApart) {
    const test::TempFolder folder;
    std::set<std::string> names;
    const std::string longest(200, 'x');
    const std::vector<std::string> texts{
        "",
        "..",
        "a/b",
        "a%2Fb",
        "%2E",
        std::string(1, '\0'),
        longest,
        longest + "x",
        longest + "xx",
        std::string(70, '/'),
        std::string(1'000'000, '/')};
    for (const auto& text : texts) {
        const auto name = fileNameFor(text) + ".jpg";
        EXPECT_TRUE(replaceFile(folder / name, text)) << name;
        EXPECT_EQ((folder / name).lexically_normal().parent_path(), folder.path());
        names.insert(name);
    }
    EXPECT_EQ(names.size(), texts.size());
    EXPECT_EQ(fileNameFor("Trang số 1.b"), "Trang số 1.b");
    EXPECT_EQ(fileNameFor("../../x"), "%2E.%2F..%2Fx");
}
