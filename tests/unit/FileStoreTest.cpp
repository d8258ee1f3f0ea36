#include "Platform/FileStore.h"

#include "Platform/FileName.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <set>
#include <thread>

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

TEST(FileStore, TheNextStartTakesFilesFromOthersButNothingOutsideAndSweepsOnlyItsOwn) {
    test::StoreWorld world;
    const auto notes = world.records / "avatars" / ".tessaro-notes";
    const auto elsewhere = world.folder / "elsewhere";
    std::filesystem::create_directories(notes.parent_path());
    std::filesystem::create_symlink(elsewhere, world.records / "link");
    for (const auto& file : {notes, elsewhere}) {
        std::ofstream(file) << "x";
        std::filesystem::permissions(file, perms::all);
    }
    world.newStore();
    EXPECT_EQ(modeOf(notes), perms::owner_all);
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
    first = lockFolder(folder / "data", 0ms);
    std::thread ending([&] {
        std::this_thread::sleep_for(50ms);
        first.reset();
    });
    EXPECT_TRUE(lockFolder(folder / "data", 30s));
    ending.join();
    ASSERT_TRUE(replaceFile(folder / "file", ""));
    EXPECT_TRUE(lockFolder(folder / "file", 0ms));
}

TEST(FileName, StaysInItsFolderAndTellsEveryTextApart) {
    const test::TempFolder folder;
    std::set<std::string> names;
    std::vector<std::string> texts{"", "..", "a/b", "a%2Fb", "%2E", std::string(1, '\0')};
    for (const std::size_t length : {200, 201, 202})
        texts.emplace_back(length, 'x');
    for (const std::size_t length : {70, 1'000'000})
        texts.emplace_back(length, '/');
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
