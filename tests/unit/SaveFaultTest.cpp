#include "FileFault.h"

#include "Platform/FileStore.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <functional>

using namespace tessaro;
using test::FileFault, test::makeAccount;

namespace {

/// One kind of file. Its versions are told apart by a text.
struct Saved {
    const char* name;
    std::function<void(const std::string&)> save;
    std::function<std::string()> inMemory; ///< Empty for pictures, which have no copy in memory.
    std::function<std::string()> onDisk;   ///< Read as after a new start; "none" without a file.
    bool waitsForDisk = true;
};

struct Case {
    const char* call;
    int error;
    std::size_t skip = 0;
};

class SaveFault : public testing::Test {
protected:
    static std::string onlyName(const std::vector<Account>& accounts) {
        return accounts.empty() ? "none" : accounts.front().name;
    }
    static std::string key(const SettingsStore& settings) {
        return settings.text("key").value_or("none");
    }
    std::size_t temporaryFiles() {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(world.folder.path()))
            count += entry.path().filename().string().starts_with(".tessaro-");
        return count;
    }
    /// Runs the work for each kind of file with each of the cases.
    void forEach(
        const std::vector<Case>& cases,
        const std::function<void(const Saved& saved, const Case& failing)>& work) {
        for (const auto& saved : everything)
            for (const auto& failing : cases) {
                const std::string_view call = failing.call;
                if (!saved.waitsForDisk && (call == "fsync" || call == "open"))
                    continue;
                SCOPED_TRACE(
                    testing::Message() << saved.name << " " << failing.call << " " << failing.error
                                       << " " << failing.skip);
                saved.save("old");
                work(saved, failing);
                EXPECT_EQ(temporaryFiles(), 0u);
            }
    }

    test::StoreWorld world;
    const std::filesystem::path config = world.folder / "config";
    std::string lastPicture;
    const std::vector<Saved> everything{
        {"records", [this](auto& text) { world.store.saveAccounts({makeAccount(text)}); },
         [this] { return onlyName(world.store.loadAccounts()); },
         [this] { return onlyName(world.newStore().loadAccounts()); }},
        {"settings", [this](auto& text) { world.settings.setText("key", text); },
         [this] { return key(world.settings); },
         [this] { return key(SettingsStore(config / "settings.ini")); }},
        {"pictures", [this](auto& text) { world.store.saveAvatarData("1", lastPicture = text); },
         [this] { return lastPicture; },
         [this] { return readFile(world.store.localAvatarURL("1")).value_or("none"); }, false},
    };
    const std::string longText = std::string(100'000, 'x');
};

} // namespace

TEST_F(SaveFault, LeavesTheOldFileWholeAndTheNewListInMemory) {
    const std::vector<Case> failures{
        {"mkostemp", ENOSPC}, {"mkostemp", EACCES}, {"mkostemp", EDQUOT}, {"mkostemp", EROFS},
        {"fchmod", EPERM},    {"write", ENOSPC},    {"write", EIO},       {"write", EDQUOT},
        {"fsync", EIO},       {"fsync", ENOSPC},    {"fsync", EDQUOT},    {"rename", EACCES},
        {"rename", ENOSPC},   {"rename", EIO},      {"rename", EINTR},
    };
    forEach(failures, [](const Saved& saved, const Case& failing) {
        {
            const FileFault fault(failing.call, failing.error);
            saved.save("lost");
            EXPECT_TRUE(fault.happened());
        }
        EXPECT_EQ(saved.onDisk(), "old");
        EXPECT_EQ(saved.inMemory(), "lost");
        saved.save("new");
        EXPECT_EQ(saved.onDisk(), "new");
    });
}

TEST_F(SaveFault, FinishesWhatASignalOrAShortWriteCutShort) {
    const std::vector<Case> cuts{
        {"mkostemp", EINTR}, {"write", EINTR},    {"write", FileFault::shortWrite},
        {"fsync", EINTR},    {"fsync", EINTR, 1}, {"open", EINTR}};
    forEach(cuts, [this](const Saved& saved, const Case& cut) {
        const FileFault fault(cut.call, cut.error, cut.skip, 3);
        saved.save(longText);
        EXPECT_TRUE(fault.happened());
        EXPECT_TRUE(saved.onDisk() == longText);
    });
}

TEST_F(SaveFault, HasTheNewFileWholeWhenOnlyItsNameMayBeLost) {
    forEach({{"open", EMFILE}, {"fsync", EIO, 1}}, [](const Saved& saved, const Case& failing) {
        const FileFault fault(failing.call, failing.error, failing.skip);
        saved.save("new");
        EXPECT_TRUE(fault.happened());
        EXPECT_EQ(saved.onDisk(), "new");
    });
}

TEST_F(SaveFault, KeepsInMemoryWhatHasNoFolderAndSavesItLater) {
    forEach(
        {{"mkdir", ENOSPC}, {"mkdir", EACCES}}, [this](const Saved& saved, const Case& failing) {
            const auto removeFolders = [&] {
                std::filesystem::remove_all(world.records);
                std::filesystem::remove_all(config);
            };
            removeFolders();
            {
                const FileFault fault(failing.call, failing.error);
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
        });
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
}

TEST_F(SaveFault, SurvivesADiskThatIsReallyFull) {
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const rlimit full{4096, old.rlim_max};
    forEach({{"full", 0}}, [&](const Saved& saved, const Case&) {
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
        saved.save(longText);
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &old), 0);
        EXPECT_EQ(saved.onDisk(), "old");
        saved.save("new");
        EXPECT_EQ(saved.onDisk(), "new");
    });
    std::signal(SIGXFSZ, before);
}
