#include "Services/KeychainService.h"

#include "support/MainLoop.h"
#include "support/PrivateSessionBus.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>

#include <stdexcept>

using namespace tessaro;
using namespace std::chrono_literals;

namespace {

/// A real gnome-keyring-daemon on a private bus, with an unlocked keyring in a temporary folder.
class GnomeKeyring {
public:
    explicit GnomeKeyring(const test::PrivateSessionBus& bus)
        : connection_(test::connectToBus(bus.address())) {
        const std::string command =
            "export HOME=$0 XDG_{DATA,CONFIG,CACHE}_HOME=$0 XDG_RUNTIME_DIR=$0;"
            "exec gnome-keyring-daemon --foreground --unlock --components=secrets"
            " --control-directory=$0 <<<password >/dev/null 2>&1";
        daemon_ = GObjectPtr<GSubprocess>::adopt(g_subprocess_new(
            G_SUBPROCESS_FLAGS_NONE, nullptr, "bash", "-c", command.c_str(), files_.path().c_str(),
            nullptr));
        if (!test::runUntil([this] { return !defaultCollection().empty(); }))
            throw std::runtime_error("gnome-keyring-daemon does not come up");
    }
    ~GnomeKeyring() {
        g_subprocess_force_exit(daemon_.get());
        g_subprocess_wait(daemon_.get(), nullptr, nullptr);
    }

    /// Locks the default keyring. Its entries can then be found but not read.
    void lock() const {
        if (!call("Lock", g_variant_new_parsed("([%o],)", defaultCollection().c_str())))
            throw std::runtime_error("the keyring does not lock");
    }

private:
    /// The keyring's path on the bus; empty while the daemon does not answer.
    std::string defaultCollection() const {
        const auto alias = call("ReadAlias", g_variant_new("(s)", "default"));
        const char* path = "";
        if (alias)
            g_variant_get(alias.get(), "(&o)", &path);
        return path;
    }
    GVariantPtr call(const char* method, GVariant* arguments) const {
        return GVariantPtr(g_dbus_connection_call_sync(
            connection_.get(), "org.freedesktop.secrets", "/org/freedesktop/secrets",
            "org.freedesktop.Secret.Service", method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE,
            -1, nullptr, nullptr));
    }

    test::TempFolder files_;
    GObjectPtr<GDBusConnection> connection_;
    GObjectPtr<GSubprocess> daemon_;
};

class KeychainServiceTest : public testing::Test {
protected:
    test::PrivateSessionBus bus_;
    const GnomeKeyring keyring_{bus_};
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
    // The store's code for a locked keyring. It did not wait for a password.
    EXPECT_THAT(
        world_.loggedLines(),
        testing::MatchesRegex(
            "\\[[^]]*\\] \\[ERROR\\] KeychainService: Lỗi lưu key 'page_token_AB': 2\n"));
}
