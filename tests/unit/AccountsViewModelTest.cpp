#include "ViewModels/AccountsViewModel.h"

#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessaro;
using test::makeAccount;
using testing::ElementsAre, testing::IsEmpty, testing::Optional;

namespace {

class AccountsViewModelTest : public testing::Test {
protected:
    AccountsViewModelTest() {
        world.store.saveAccounts({first, second});
        model.loadAccounts();
    }

    void addNameless() { model.addAccount("", "", 0, "", SecretText(), false); }
    std::vector<Account> stored() { return world.newStore().loadAccounts(); }

    test::StoreWorld world;
    const Account first = makeAccount("một"), second = makeAccount("hai");
    AccountsViewModel model{world.store, world.device, world.clock};
};

Account renamed(Account account, const std::string& name) {
    account.name = name;
    return account;
}

} // namespace

TEST_F(AccountsViewModelTest, AppendsSavesAndSelectsANewAccountAsGiven) {
    EXPECT_THAT(*model.accounts, ElementsAre(first, second));
    EXPECT_EQ(*model.selectedAccount, std::nullopt);
    model.addAccount(" ", " host ", 70000, "user", SecretText("password"), true);
    const Account added = model.accounts->back();
    EXPECT_THAT(*model.selectedAccount, Optional(added));
    ASSERT_THAT(stored(), ElementsAre(first, second, added));
    const Account written = stored().back();
    EXPECT_EQ(written.name, " ");
    EXPECT_EQ(written.deviceId, world.device.getDeviceUUID());
    EXPECT_EQ(written.deviceName, world.device.deviceName());
    EXPECT_EQ(written.proxyHost, " host ");
    EXPECT_EQ(written.proxyPort, 70000);
    EXPECT_EQ(written.proxyUsername, "user");
    EXPECT_EQ(written.proxyPassword, SecretText("password"));
    EXPECT_TRUE(written.proxyEnabled);
    EXPECT_EQ(written.createdAt, world.clock.now());

    addNameless();
    EXPECT_EQ(model.accounts->back().name, "Tài khoản 4") << "by the length of the list";
}

TEST_F(AccountsViewModelTest, UpdatesAnAccountAndTheSelectionThatIsACopyOfIt) {
    model.selectAccount(first);
    int announced = 0;
    const auto watching = model.selectedAccount.observe([&] { ++announced; });
    model.updateAccount(renamed(second, "khác"));
    EXPECT_EQ(announced, 0);
    model.updateAccount(renamed(first, "mới"));
    EXPECT_EQ((*model.selectedAccount)->name, "mới");
    EXPECT_EQ(stored().at(0).name, "mới");
    EXPECT_EQ(stored().at(1).name, "khác");
    model.updateAccount(makeAccount("lạ"));
    EXPECT_THAT(stored(), ElementsAre(first, second));
}

TEST_F(AccountsViewModelTest, MovesALostSelectionToTheFirstAccountLeft) {
    addNameless();
    const Account third = model.accounts->back();
    model.deleteAccount(second);
    EXPECT_THAT(*model.selectedAccount, Optional(third)) << "another account was deleted";
    model.deleteAccount(model.accounts->back());
    EXPECT_THAT(*model.selectedAccount, Optional(first));
    model.deleteAccount(first);
    EXPECT_EQ(*model.selectedAccount, std::nullopt);
    EXPECT_THAT(stored(), IsEmpty());
}
