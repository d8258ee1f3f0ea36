#include "Platform/FileStore.h"

#include "Platform/FileName.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
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

/// Sets the process's umask for a while.
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

TEST(FileStore, TellsWhyAFileOrAFolderCannotBeMade) {
    const test::TempFolder folder;
    ASSERT_TRUE(replaceFile(folder / "file", ""));
    EXPECT_EQ(ensureFolder(folder / "file/below").error().code, EEXIST);
    EXPECT_EQ(replaceFile(folder / "missing/file", "").error().code, ENOENT);
}

TEST(FileStore, TheNextStartNarrowsModesAndSweepsOnlyTemporaryFiles) {
    using Paths = std::vector<std::filesystem::path>;
    test::StoreWorld world;
    const auto avatars = world.records / "avatars", config = world.folder / "config",
               elsewhere = world.folder / "elsewhere";
    const Paths files{
        world.records / "accounts.json",
        world.records / "pages.json.unreadable-2025",
        world.records / "accounts.json.backup",
        world.records / ".tessaro-notes",
        avatars / "1.jpg",
        config / "settings.ini"};
    const Paths stale{
        world.records / ".tessaro-a1B2c3", avatars / ".tessaro-ZZZZZZ", config / ".tessaro-000000"};
    const Paths folders{world.records, avatars, config};
    for (const auto& folder : folders)
        std::filesystem::create_directories(folder);
    for (const auto& list : {files, stale, Paths{elsewhere}})
        for (const auto& file : list) {
            std::ofstream(file) << "x";
            std::filesystem::permissions(file, ownerFile | perms::group_all | perms::others_all);
        }
    for (const auto& folder : folders)
        std::filesystem::permissions(folder, perms::all);
    std::filesystem::create_symlink(elsewhere, world.records / "link");

    const auto store = world.newStore();
    const SettingsStore settings(config / "settings.ini");
    for (const auto& file : files)
        EXPECT_EQ(modeOf(file), ownerFile) << file;
    for (const auto& folder : folders)
        EXPECT_EQ(modeOf(folder), ownerFolder) << folder;
    for (const auto& file : stale)
        EXPECT_FALSE(std::filesystem::exists(file)) << file;
    EXPECT_NE(modeOf(elsewhere), ownerFile);
}

TEST(FileName, StaysInItsFolderAndTellsEveryTextApart) {
    const test::TempFolder folder;
    std::set<std::string> names;
    const std::string longest(200, 'x');
    const std::vector<std::string> texts{
        "1234567890",
        "",
        "..",
        "a",
        "a/b",
        "a%2Fb",
        "%2E",
        "../../x",
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
