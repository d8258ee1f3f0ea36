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

TEST(FileStore, MakesFilesAndFoldersForTheOwnerAloneWhateverTheUmask) {
    for (const mode_t mask : {0, 022, 0777}) {
        const test::TempFolder folder;
        const Umask umask(mask);
        ASSERT_TRUE(ensureFolder(folder / "a/b"));
        EXPECT_EQ(modeOf(folder / "a"), ownerFolder);
        EXPECT_EQ(modeOf(folder / "a/b"), ownerFolder);
        ASSERT_TRUE(replaceFile(folder / "a/b/file", "x"));
        EXPECT_EQ(modeOf(folder / "a/b/file"), ownerFile);
    }
}

TEST(FileStore, NarrowsTheModeOfAFileThatItReplaces) {
    const test::TempFolder folder;
    ASSERT_TRUE(replaceFile(folder / "file", "old"));
    std::filesystem::permissions(folder / "file", perms::all);
    ASSERT_TRUE(replaceFile(folder / "file", std::string_view("n\0w", 3)));
    EXPECT_EQ(modeOf(folder / "file"), ownerFile);
    EXPECT_EQ(readFile(folder / "file"), std::string("n\0w", 3));
}

TEST(FileStore, TellsWhyAFileOrAFolderCannotBeMade) {
    const test::TempFolder folder;
    ASSERT_TRUE(replaceFile(folder / "file", ""));
    EXPECT_EQ(ensureFolder(folder / "file/below").error().code, EEXIST);
    EXPECT_EQ(ensureFolder(folder / "file").error().code, EEXIST);
    EXPECT_EQ(replaceFile(folder / "missing/file", "").error().code, ENOENT);
    EXPECT_FALSE(readFile(folder / "missing"));
    EXPECT_FALSE(readFile(folder.path()));
}

TEST(FileStore, TheNextStartNarrowsModesAndSweepsOnlyTemporaryFiles) {
    test::StoreWorld world;
    std::filesystem::create_directories(world.records / "avatars");
    std::filesystem::create_directories(world.folder / "config");
    const auto elsewhere = world.folder / "elsewhere";
    std::ofstream(elsewhere) << "x";
    const std::vector<std::filesystem::path> files{
        world.records / "accounts.json",        world.records / "pages.json.unreadable-2025",
        world.records / "accounts.json.backup", world.records / ".tessaro-notes",
        world.records / "avatars/1.jpg",        world.folder / "config/settings.ini"};
    const std::vector<std::filesystem::path> stale{
        world.records / ".tessaro-a1B2c3", world.records / "avatars/.tessaro-ZZZZZZ",
        world.folder / "config/.tessaro-000000"};
    for (const auto& list : {files, stale})
        for (const auto& file : list) {
            std::ofstream(file) << "x";
            std::filesystem::permissions(file, ownerFile | perms::others_read | perms::group_all);
        }
    const std::vector<std::filesystem::path> folders{
        world.records, world.records / "avatars", world.folder / "config"};
    for (const auto& folder : folders)
        std::filesystem::permissions(folder, perms::all);
    std::filesystem::permissions(elsewhere, perms::all);
    std::filesystem::create_symlink(elsewhere, world.records / "link");

    const auto store = world.newStore();
    const SettingsStore settings(world.folder / "config/settings.ini");
    for (const auto& file : files)
        EXPECT_EQ(modeOf(file), ownerFile) << file;
    for (const auto& folder : folders)
        EXPECT_EQ(modeOf(folder), ownerFolder) << folder;
    for (const auto& file : stale)
        EXPECT_FALSE(std::filesystem::exists(file)) << file;
    EXPECT_EQ(modeOf(elsewhere), perms::all);
}

TEST(FileName, StaysInItsFolderAndTellsEveryTextApart) {
    EXPECT_EQ(fileNameFor("1234567890"), "1234567890");
    EXPECT_EQ(fileNameFor("../../x"), "%2E.%2F..%2Fx");
    EXPECT_EQ(fileNameFor(std::string_view("a\0b\n", 4)), "a%00b%0A");
    EXPECT_EQ(fileNameFor("Trang số 1.b"), "Trang số 1.b");
    const std::vector<std::string> texts{
        "",
        ".",
        "..",
        "a",
        "a/b",
        "a%2Fb",
        "%2E",
        "/",
        std::string(1, '\0'),
        std::string(200, 'x'),
        std::string(201, 'x'),
        std::string(202, 'x'),
        std::string(70, '/'),
        std::string(1'000'000, '/'),
        fileNameFor(std::string(201, 'x'))};
    std::set<std::string> names;
    const test::TempFolder folder;
    for (const auto& text : texts) {
        const auto name = fileNameFor(text) + ".jpg";
        EXPECT_LE(name.size(), 255u);
        EXPECT_TRUE(replaceFile(folder / name, text)) << name;
        EXPECT_EQ((folder / name).lexically_normal().parent_path(), folder.path());
        names.insert(name);
    }
    EXPECT_EQ(names.size(), texts.size());
}
