#include "Services/KeychainService.h"

#include "support/GnomeKeyring.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;

namespace {

class KeychainServiceTest : public testing::Test {
protected:
    test::PrivateSessionBus bus_;
    test::GnomeKeyring keyring_{bus_};
    test::StoreWorld world_;
    SecretStore store_{20s};
    KeychainService keychain_{store_, world_.logger};
};

} // namespace

TEST_F(KeychainServiceTest, KeepsTheLastValueUnderEachKeyAndTellsKeysApartExactly) {
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_TRUE(keychain_.save("page_token_AB", SecretText("old")));
    EXPECT_TRUE(keychain_.save("page_token_AB", SecretText("mới")));
    EXPECT_TRUE(keychain_.save("page_token_ab", SecretText("")));
    EXPECT_EQ(keychain_.load("page_token_AB"), SecretText("mới"));
    EXPECT_EQ(keychain_.load("page_token_ab"), SecretText(""));
    EXPECT_EQ(store_.lookup("com.vandel.Tessaro", "page_token_AB").value(), SecretText("mới"));
    EXPECT_EQ(store_.lookup("another program", "page_token_AB").value(), std::nullopt);

    EXPECT_TRUE(keychain_.remove("page_token_AB"));
    EXPECT_TRUE(keychain_.remove("page_token_AB"));
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_NE(keychain_.load("page_token_ab"), std::nullopt);
    const SecretText bytes(std::string("a\0\xFF", 3));
    EXPECT_TRUE(keychain_.save("damaged", bytes));
    EXPECT_EQ(keychain_.load("damaged"), std::nullopt);
    EXPECT_EQ(store_.lookup("com.vandel.Tessaro", "damaged").value(), bytes);
    EXPECT_FALSE(std::filesystem::exists(world_.logger.currentLogURL()));
}

TEST_F(KeychainServiceTest, LeavesALockedKeyringAloneAndLogsASaveThatFailed) {
    ASSERT_TRUE(keychain_.save("page_token_AB", SecretText("kept")));
    keyring_.lock();
    EXPECT_FALSE(keychain_.save("page_token_AB", SecretText("hidden")));
    EXPECT_EQ(keychain_.load("page_token_AB"), std::nullopt);
    EXPECT_FALSE(keychain_.remove("page_token_AB"));
    EXPECT_TRUE(keychain_.remove("missing"));
    // The store's code for a locked keyring: no prompt was waited for.
    EXPECT_THAT(
        world_.loggedLines(),
        testing::MatchesRegex(
            "\\[[^]]*\\] \\[ERROR\\] KeychainService: Lỗi lưu key 'page_token_AB': 2\n"));
}
