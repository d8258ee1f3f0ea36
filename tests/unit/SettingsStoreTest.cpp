#include "Platform/SettingsStore.h"

#include "Platform/FileStore.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

#include <fstream>

using namespace tessaro;

namespace {

class SettingsStoreTest : public testing::Test {
protected:
    void put(std::string_view bytes) { std::ofstream(file) << bytes; }
    std::string bytes() { return readFile(file).value_or("none"); }

    test::TempFolder folder;
    std::filesystem::path file = folder / "settings.ini";
};

} // namespace

TEST_F(SettingsStoreTest, RemembersEveryTextAcrossStartsAndKeepsWhatItDoesNotKnow) {
    put("# by hand\n[other]\na=1\n\n[settings]\nname[vi]=tên\nkey = old \nbad=\xFF\xC3\n");
    SettingsStore settings(file);
    EXPECT_FALSE(settings.text("missing"));
    EXPECT_FALSE(settings.text("bad"));
    EXPECT_EQ(settings.text("key"), "old ");
    for (const std::string text :
         {"", "  hai\tdòng\n \\s # ; = [x]", "👩‍👩‍👧", "new"}) {
        settings.setText("key", text);
        EXPECT_EQ(SettingsStore(file).text("key"), text);
    }
    EXPECT_THAT(bytes(), testing::HasSubstr("# by hand\n\n[other]\na=1\n"));
    EXPECT_THAT(bytes(), testing::HasSubstr("name[vi]=tên\nkey=new\n"));
}

TEST_F(SettingsStoreTest, SetsAFileAsideThatItCannotReadAndSavesWhenThereIsNothingToSetAside) {
    const std::string damaged("[settings]\nkey=a\0b\nrest", 23);
    const auto change = [&](auto before, auto meanwhile) {
        std::filesystem::remove_all(file);
        before();
        SettingsStore settings(file);
        meanwhile();
        settings.setText("key", "new");
        EXPECT_EQ(SettingsStore(file).text("key"), "new");
        const std::filesystem::directory_iterator files(folder.path());
        return std::ranges::count_if(files, [](const auto& entry) {
            return entry.path().filename().string().starts_with("settings.ini.unreadable-");
        });
    };
    EXPECT_EQ(change([&] { put(damaged); }, [] {}), 1);
    EXPECT_EQ(change([&] { std::filesystem::create_directory(file); }, [] {}), 2);
    EXPECT_EQ(change([] {}, [&] { put("[settings]\nkey=late\n"); }), 3);
    EXPECT_EQ(change([&] { put(damaged); }, [&] { std::filesystem::remove(file); }), 3);
}
