#include "FileFault.h"

#include "Platform/FileStore.h"
#include "support/StoreWorld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>

using namespace tessaro;
using test::FileFault, test::makeAccount;

namespace {

/// One thing that is saved in versions, told apart by a text.
struct Saved {
    const char* name;
    std::function<void(const std::string&)> save;
    std::function<std::string()> inMemory;
    std::function<std::string()> onDisk; ///< As after a new start; "none" without a file.
};

struct Case {
    const char* call;
    int error;
    std::size_t skip = 0;
};

const Case failures[] = {
    {"mkostemp", ENOSPC}, {"mkostemp", EACCES}, {"mkostemp", EDQUOT}, {"mkostemp", EROFS},
    {"fchmod", EPERM},    {"write", ENOSPC},    {"write", EIO},       {"write", EDQUOT},
    {"fsync", EIO},       {"fsync", ENOSPC},    {"fsync", EDQUOT},    {"rename", EACCES},
    {"rename", ENOSPC},   {"rename", EIO},      {"rename", EINTR},
};

class SaveFault : public testing::Test {
protected:
    std::string onlyName(const std::vector<Account>& accounts) {
        return accounts.empty() ? "none" : accounts.front().name;
    }

    test::StoreWorld world;
    std::string lastPicture; ///< Pictures have no copy in memory.
    std::vector<Saved> everything{
        {"records", [this](auto& text) { world.store.saveAccounts({makeAccount(text)}); },
         [this] { return onlyName(world.store.loadAccounts()); },
         [this] { return onlyName(world.newStore().loadAccounts()); }},
        {"settings", [this](auto& text) { world.settings.setText("key", text); },
         [this] { return world.settings.text("key").value_or("none"); },
         [this] {
             return SettingsStore(world.folder / "config" / "settings.ini")
                 .text("key")
                 .value_or("none");
         }},
        {"pictures", [this](auto& text) { world.store.saveAvatarData("1", lastPicture = text); },
         [this] { return lastPicture; },
         [this] { return readFile(world.store.localAvatarURL("1")).value_or("none"); }},
    };

    std::size_t temporaryFiles() {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(world.folder.path()))
            count += entry.path().filename().string().starts_with(".tessaro-");
        return count;
    }
};

} // namespace

TEST_F(SaveFault, LeavesTheOldFileWholeAndTheNewListInMemory) {
    for (const auto& saved : everything) {
        saved.save("old");
        for (const auto& failing : failures) {
            SCOPED_TRACE(
                testing::Message()
                << saved.name << " " << failing.call << " " << strerrorname_np(failing.error));
            {
                const FileFault fault(failing.call, failing.error, failing.skip);
                saved.save("lost");
                EXPECT_TRUE(fault.happened());
            }
            EXPECT_EQ(saved.onDisk(), "old");
            EXPECT_EQ(saved.inMemory(), "lost");
            EXPECT_EQ(temporaryFiles(), 0u);
            saved.save("old");
            EXPECT_EQ(saved.onDisk(), "old");
        }
    }
}

TEST_F(SaveFault, FinishesWhatASignalOrAShortWriteCutShort) {
    const std::string longText(100'000, 'x');
    for (const auto& saved : everything)
        for (const Case& cut :
             {Case{"mkostemp", EINTR}, Case{"write", EINTR}, Case{"write", FileFault::shortWrite},
              Case{"fsync", EINTR}, Case{"fsync", EINTR, 1}, Case{"open", EINTR}}) {
            SCOPED_TRACE(testing::Message() << saved.name << " " << cut.call);
            saved.save("old");
            const FileFault fault(cut.call, cut.error, cut.skip, 3);
            saved.save(longText);
            EXPECT_TRUE(fault.happened());
            EXPECT_TRUE(saved.onDisk() == longText);
        }
}

TEST_F(SaveFault, HasTheNewFileWholeWhenOnlyItsNameMayBeLost) {
    for (const auto& saved : everything)
        for (const Case& failing : {Case{"open", EMFILE}, Case{"fsync", EIO, 1}}) {
            saved.save("old");
            const FileFault fault(failing.call, failing.error, failing.skip);
            saved.save("new");
            EXPECT_TRUE(fault.happened());
            EXPECT_EQ(saved.onDisk(), "new") << saved.name;
        }
}

TEST_F(SaveFault, KeepsInMemoryWhatHasNoFolderAndSavesItLater) {
    for (const auto& saved : everything) {
        const auto removeFolders = [&] {
            std::filesystem::remove_all(world.records);
            std::filesystem::remove_all(world.folder / "config");
        };
        removeFolders();
        {
            const FileFault fault("mkdir", ENOSPC);
            saved.save("new");
            EXPECT_TRUE(fault.happened());
        }
        EXPECT_EQ(saved.onDisk(), "none");
        EXPECT_EQ(saved.inMemory(), "new");
        removeFolders();
        const FileFault interrupted("mkdir", EINTR, 0, 2);
        saved.save("newer");
        EXPECT_TRUE(interrupted.happened());
        EXPECT_EQ(saved.onDisk(), "newer");
    }
}

TEST_F(SaveFault, NeverReplacesAnUnreadableFileThatCannotBeSetAside) {
    std::filesystem::create_directories(world.records);
    ASSERT_TRUE(replaceFile(world.records / "accounts.json", "damaged"));
    EXPECT_TRUE(world.store.loadAccounts().empty());
    {
        const FileFault fault("rename", EACCES);
        world.store.saveAccounts({makeAccount("new")});
        EXPECT_TRUE(fault.happened());
    }
    EXPECT_EQ(readFile(world.records / "accounts.json"), "damaged");
    world.store.saveAccounts({makeAccount("newer")});
    EXPECT_EQ(onlyName(world.newStore().loadAccounts()), "newer");
    EXPECT_EQ(readFile(world.records / "accounts.json.unreadable-2025-03-01T09-30-05Z"), "damaged");
}

TEST_F(SaveFault, SurvivesADiskThatIsReallyFull) {
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    for (const auto& saved : everything) {
        saved.save("old");
        const rlimit full{4096, old.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
        saved.save(std::string(100'000, 'x'));
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
        EXPECT_EQ(saved.onDisk(), "old") << saved.name;
        EXPECT_EQ(temporaryFiles(), 0u);
        saved.save("new");
        EXPECT_EQ(saved.onDisk(), "new") << saved.name;
    }
    std::signal(SIGXFSZ, before);
}
