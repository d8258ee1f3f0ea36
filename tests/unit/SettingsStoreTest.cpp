#include "Platform/SettingsStore.h"

#include "Platform/FileStore.h"
#include "Services/BuildConfig.h"
#include "Services/Endpoints.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

TEST_F(SettingsStoreTest, RemembersEveryTextAcrossStarts) {
    SettingsStore settings(file);
    EXPECT_FALSE(settings.text("key"));
    const std::vector<std::string> texts{
        "", "dark", "  hai\tdòng\n \\s # ; = [x]", "👩‍👩‍👧", std::string(100'000, 'x')};
    for (const auto& text : texts) {
        settings.setText("key", text);
        EXPECT_EQ(SettingsStore(file).text("key"), text);
    }
}

TEST_F(SettingsStoreTest, KeepsWhatItDoesNotKnow) {
    put("# by hand\n[other]\na=1\n\n[settings]\nname[vi]=tên\nkey = old \n");
    SettingsStore settings(file);
    EXPECT_EQ(settings.text("key"), "old ");
    settings.setText("key", "new");
    EXPECT_THAT(bytes(), testing::HasSubstr("# by hand\n\n[other]\na=1\n"));
    EXPECT_THAT(bytes(), testing::HasSubstr("name[vi]=tên\nkey=new\n"));
}

TEST_F(SettingsStoreTest, SetsAFileAsideThatIsNoKeyFile) {
    for (const std::string_view damaged :
         {std::string_view("text"), std::string_view("[settings]\nkey=a\0b\nrest", 23)}) {
        put(damaged);
        SettingsStore settings(file);
        EXPECT_FALSE(settings.text("other"));
        settings.setText("key", "new");
        EXPECT_EQ(SettingsStore(file).text("key"), "new");
    }
    std::size_t aside = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        aside += entry.path().filename().string().starts_with("settings.ini.unreadable-");
    EXPECT_EQ(aside, 2u);
}

TEST_F(SettingsStoreTest, ReadsADamagedValueAsAbsent) {
    put("[settings]\nbad=\xFF\xC3\ngood=1\n");
    const SettingsStore settings(file);
    EXPECT_FALSE(settings.text("bad"));
    EXPECT_EQ(settings.text("good"), "1");
}

TEST_F(SettingsStoreTest, GivesTheAddressesOrTheBuiltInOnes) {
    SettingsStore settings(file);
    const auto builtIn = Endpoints::fromSettings(settings);
    EXPECT_EQ(builtIn.graphBaseUrl(), "https://graph.facebook.com/v25.0");
    EXPECT_EQ(builtIn.inboxHost(), "business.facebook.com");
    EXPECT_EQ(builtIn.supportServer, build::supportServer);
    EXPECT_EQ(builtIn.linkDonate, build::linkDonate);

    settings.setText("graph_api_origin", "http://127.0.0.1:8080/");
    settings.setText("inbox_origin", "http://LocalHost:8080");
    settings.setText("skarn_server_url", "host/");
    settings.setText("link_zalo", "");
    const auto own = Endpoints::fromSettings(settings);
    EXPECT_EQ(own.graphBaseUrl(), "http://127.0.0.1:8080/v25.0");
    EXPECT_EQ(own.inboxHost(), "localhost:8080");
    EXPECT_EQ(own.supportServer, "host/");
    EXPECT_EQ(own.linkZalo, "");
    settings.setText("inbox_origin", "nonsense");
    EXPECT_EQ(Endpoints::fromSettings(settings).inboxHost(), "");
}
