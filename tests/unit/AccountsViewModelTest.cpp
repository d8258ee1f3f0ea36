#include "ViewModels/AccountsViewModel.h"

#include "FileFault.h"

#include "support/StoreWorld.h"

#include <gmock/gmock.h>

using namespace tessaro;
using test::makeAccount;
using testing::ElementsAre, testing::IsEmpty, testing::Optional, testing::SizeIs;

namespace {

class AccountsViewModelTest : public testing::Test {
protected:
    AccountsViewModelTest() {
        world.store.saveAccounts({first, second});
        model.loadAccounts();
    }

    void addNameless() { model.addAccount({}); }
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
    const AccountDraft draft{" ", " host ", 70000, "user", SecretText("password"), true};
    model.addAccount(draft);
    const Account added = model.accounts->back();
    EXPECT_THAT(*model.selectedAccount, Optional(added));
    ASSERT_THAT(stored(), ElementsAre(first, second, added));
    const Account written = stored().back();
    EXPECT_EQ(
        (AccountDraft{
            written.name, written.proxyHost, written.proxyPort, written.proxyUsername,
            written.proxyPassword, written.proxyEnabled}),
        draft);
    EXPECT_EQ(written.deviceId, world.device.getDeviceUUID());
    EXPECT_EQ(written.deviceName, world.device.deviceName());
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

TEST_F(AccountsViewModelTest, ShowsWhatAFullDiskDidNotTakeAndSavesItWithTheNextChange) {
    {
        const test::FileFault full("write", ENOSPC);
        addNameless();
        EXPECT_TRUE(full.happened());
    }
    EXPECT_THAT(stored(), ElementsAre(first, second));
    EXPECT_THAT(*model.accounts, SizeIs(3));
    addNameless();
    EXPECT_THAT(stored(), SizeIs(4));
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

TEST_F(AccountsViewModelTest, KeepsTheAccountsThatCouldNotBeReadBefore) {
    const auto file = world.records / "accounts.json";
    const auto elsewhere = world.folder / "elsewhere";
    for (const bool anotherReaderIsFirst : {false, true}) {
        std::filesystem::rename(file, elsewhere);
        std::filesystem::create_directory(file);
        auto store = world.newStore();
        AccountsViewModel late(store, world.device, world.clock);
        EXPECT_THAT(*late.accounts, IsEmpty());
        std::filesystem::remove(file);
        std::filesystem::rename(elsewhere, file);
        const auto before = stored();
        EXPECT_EQ(anotherReaderIsFirst ? store.loadAccounts() : before, before);
        late.addAccount({});
        EXPECT_EQ(late.accounts->size(), before.size() + 1);
        EXPECT_EQ(*late.accounts, stored());
    }
}
