#include "Services/DataStore.h"

#include "Models/RecordList.h"
#include "Platform/FileStore.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>

#include <fstream>

using namespace tessaro;
using test::makeAccount, test::makePage;
using testing::ElementsAre, testing::IsEmpty, testing::SizeIs;

namespace {

class DataStoreTest : public testing::Test {
protected:
    void put(const std::string& name, std::string_view bytes) {
        std::filesystem::create_directories(world.records);
        std::ofstream(world.records / name) << bytes;
    }
    std::optional<std::string> bytesOf(const std::string& name) {
        return readFile(world.records / name);
    }
    std::vector<std::string> names() {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(world.records))
            found.push_back(entry.path().filename());
        std::sort(found.begin(), found.end());
        return found;
    }

    test::StoreWorld world;
    DataStore& store = world.store;
    Account first = makeAccount("một"), second = makeAccount("hai");
    PageConfig a = makePage(first, "1"), b = makePage(second, "2"), c = makePage(first, "3"),
               d = makePage(second, "4");
};

} // namespace

TEST_F(DataStoreTest, DeletesAPageOrAnAccountWithItsPagesAndTheirKeyringEntries) {
    store.saveAccounts({first, second});
    store.savePages({a, b, c, d});
    store.deletePage(b.id);
    store.deleteAccount(first.id);
    auto later = world.newStore();
    EXPECT_THAT(later.loadAccounts(), ElementsAre(second));
    EXPECT_THAT(later.loadPages(), ElementsAre(d));
    store.finishDeletions(std::chrono::seconds(30));
    EXPECT_THAT(
        world.keychain.removed, ElementsAre(
                                    "page_token_" + b.id.text(), "page_token_" + a.id.text(),
                                    "page_token_" + c.id.text(), "proxy_pass_" + first.id.text()));
}

TEST_F(DataStoreTest, SavesTheListsBeforeASlowKeyringHasDeletedItsEntries) {
    std::promise<void> atLast;
    world.keychain.slowness = atLast.get_future().share();
    store.saveAccounts({first});
    store.savePages(std::vector(20, a));
    const auto begun = std::chrono::steady_clock::now();
    store.deleteAccount(first.id);
    EXPECT_THAT(world.newStore().loadAccounts(), IsEmpty());
    EXPECT_THAT(world.newStore().loadPages(), IsEmpty());
    store.finishDeletions(std::chrono::milliseconds(1));
    EXPECT_LT(std::chrono::steady_clock::now() - begun, std::chrono::seconds(5));
    atLast.set_value();
    store.finishDeletions(std::chrono::seconds(30));
    ASSERT_THAT(world.keychain.removed, SizeIs(21));
    EXPECT_EQ(world.keychain.removed.back(), "proxy_pass_" + first.id.text());
}

TEST_F(DataStoreTest, LeavesPagesAloneThatCannotBeReadWhenAnAccountIsDeleted) {
    std::filesystem::create_directories(world.records / "pages.json");
    store.saveAccounts({first});
    store.deleteAccount(first.id);
    std::filesystem::remove(world.records / "pages.json");
    put("pages.json", encodeList(std::vector{b}));
    EXPECT_THAT(store.loadPages(), ElementsAre(b));
}

TEST_F(DataStoreTest, SetsAFileAsideThatDidNotDecodeBeforeItIsReplaced) {
    const std::string aside = "accounts.json.unreadable-2025-03-01T09-30-05Z";
    put("accounts.json", "[-1]");
    put(aside, "earlier");
    EXPECT_THAT(store.loadAccounts(), IsEmpty());
    put("accounts.json", "[{}, {}]");
    EXPECT_THAT(store.loadAccounts(), IsEmpty());
    store.saveAccounts({first});
    store.saveAccounts({first, second});
    EXPECT_THAT(names(), ElementsAre("accounts.json", aside, aside + "-2"));
    EXPECT_EQ(bytesOf(aside), "earlier");
    EXPECT_EQ(bytesOf(aside + "-2"), "[{}, {}]");
    EXPECT_THAT(world.newStore().loadAccounts(), SizeIs(2));
}

TEST_F(DataStoreTest, SetsASideWhatCannotBeReadAndSavesWhenThereIsNothingToSetAside) {
    // A folder in the place of the file cannot be read, even by root.
    std::filesystem::create_directories(world.records / "pages.json" / "kept");
    EXPECT_THAT(store.loadPages(), IsEmpty());
    store.savePages({a});
    const std::string aside = "pages.json.unreadable-2025-03-01T09-30-05Z";
    EXPECT_THAT(names(), ElementsAre("pages.json", aside));
    EXPECT_THAT(world.newStore().loadPages(), ElementsAre(a));

    put("accounts.json", "[{}]");
    EXPECT_THAT(store.loadAccounts(), IsEmpty());
    std::filesystem::remove(world.records / "accounts.json");
    store.saveAccounts({first});
    EXPECT_THAT(world.newStore().loadAccounts(), ElementsAre(first));
    // The file appears after it was read, as on a disk that is mounted late.
    auto late = world.newStore();
    std::filesystem::rename(world.records / "pages.json", world.folder / "later");
    EXPECT_THAT(late.loadPages(), IsEmpty());
    std::filesystem::rename(world.folder / "later", world.records / "pages.json");
    late.savePages({b});
    EXPECT_EQ(bytesOf(aside + "-2"), encodeList(std::vector{a}));
}
