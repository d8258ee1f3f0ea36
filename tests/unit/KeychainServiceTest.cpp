#include "Services/KeychainService.h"

#include "support/GnomeKeyring.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;

namespace {

class KeychainServiceTest : public testing::Test {
protected:
    test::PrivateSessionBus bus_;
    test::TempFolder temp_;
    SettingsStore settings_{temp_ / "settings.ini"};
    DeviceIdentity device_{settings_};
    test::ManualClock clock_;
    AppLogger logger_{temp_ / "logs", device_, clock_};
    SecretStore store_{20s};
    KeychainService keychain_{store_, logger_};
};

} // namespace

TEST_F(KeychainServiceTest, KeepsTheLastValueUnderEachKeyAndTellsKeysApartExactly) {
    const test::GnomeKeyring keyring(bus_);
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_TRUE(keychain_.save("page_token_AB", SecretText("old")));
    EXPECT_TRUE(keychain_.save("page_token_AB", SecretText("mới")));
    EXPECT_TRUE(keychain_.save("page_token_ab", SecretText("")));
    EXPECT_EQ(keyring.count("com.vandel.Tessaro", "page_token_AB"), 1U);
    EXPECT_EQ(keychain_.load("page_token_AB"), SecretText("mới"));
    EXPECT_EQ(keychain_.load("page_token_ab"), SecretText(""));

    EXPECT_TRUE(keychain_.remove("page_token_AB"));
    EXPECT_TRUE(keychain_.remove("page_token_AB"));
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_NE(keychain_.load("page_token_ab"), std::nullopt);

    ASSERT_TRUE(store_.store("com.vandel.Tessaro", "damaged", SecretText("\xFF")));
    EXPECT_EQ(keychain_.load("damaged"), std::nullopt);
    logger_.flush(10s);
    EXPECT_FALSE(std::filesystem::exists(logger_.currentLogURL()));
}

TEST_F(KeychainServiceTest, LogsASaveThatFailedWithTheStoresCodeAndNothingElse) {
    test::GnomeKeyring keyring(bus_);
    ASSERT_TRUE(keychain_.save("page_token_AB", SecretText("kept")));
    keyring.lock();
    EXPECT_FALSE(keychain_.save("page_token_AB", SecretText("hidden")));
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_FALSE(keychain_.remove("page_token_AB"));
    logger_.flush(10s);
    const auto log = logger_.readCurrentLog();
    EXPECT_TRUE(log.ends_with("] [ERROR] KeychainService: Lỗi lưu key 'page_token_AB': 2\n"))
        << log;
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 1);
}
