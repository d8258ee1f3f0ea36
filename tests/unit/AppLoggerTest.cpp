#include "Services/AppLogger.h"

#include "Platform/FileStore.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>
#include <vector>

using namespace tessaro;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

/// 2025-03-05 14:07:09 in the time zone of these tests, seven hours ahead of UTC.
constexpr std::chrono::sys_seconds afternoon{1'741'158'429s};

class AppLoggerTest : public testing::Test {
protected:
    AppLoggerTest() {
        setenv("TZ", "TST-7", 1);
        std::ofstream(temp_ / "machine-id") << "0123abc\n";
    }
    ~AppLoggerTest() override { unsetenv("TZ"); }

    std::string textOf(const std::string& fileName) const {
        return readFile(folder() / fileName).value_or("(none)");
    }
    fs::path folder() const { return temp_ / "Tessaro" / "logs"; }

    test::TempFolder temp_;
    test::ManualClock clock_{afternoon};
    SettingsStore settings_{temp_ / "settings.ini"};
    DeviceIdentity device_{settings_, temp_ / "machine-id"};
};

} // namespace

TEST_F(AppLoggerTest, MakesTheDaysFileWithTheFirstLineAndAppendsTheOthers) {
    {
        AppLogger logger(folder(), device_, clock_);
        logger.log("Một: é", "WARN");
        logger.flush(10s);
        clock_.advance(61s);
        logger.log("two\nlines", "INFO");
        logger.flush(10s);
    }
    AppLogger nextRun(folder(), device_, clock_);
    nextRun.log("three", "ERROR");
    nextRun.flush(10s);

    EXPECT_EQ(nextRun.currentLogURL(), folder() / "0123abc-05-03-2025.log");
    EXPECT_EQ(
        nextRun.readCurrentLog(), "[2025-03-05 14:07:09] [WARN] Một: é\n"
                                  "[2025-03-05 14:08:10] [INFO] two\nlines\n"
                                  "[2025-03-05 14:08:10] [ERROR] three\n");
    EXPECT_EQ(fs::status(nextRun.currentLogURL()).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder()).permissions(), fs::perms(0700));
}

TEST_F(AppLoggerTest, BeginsANewFileAtLocalMidnightAndKeepsTheOldOne) {
    AppLogger logger(folder(), device_, clock_);
    logger.log("before", "INFO");
    logger.flush(10s);
    clock_.advance(10h);
    EXPECT_EQ(logger.readCurrentLog(), "Chưa có log ghi nhận hôm nay.");
    logger.log("after", "INFO");
    logger.flush(10s);
    EXPECT_EQ(textOf("0123abc-05-03-2025.log"), "[2025-03-05 14:07:09] [INFO] before\n");
    EXPECT_EQ(textOf("0123abc-06-03-2025.log"), "[2025-03-06 00:07:09] [INFO] after\n");
}

TEST_F(AppLoggerTest, KeepsTheLinesOfManyThreadsWholeAndEachThreadsInOrder) {
    constexpr int threads = 8, lines = 2000;
    AppLogger logger(folder(), device_, clock_);
    std::vector<std::thread> callers;
    for (int thread = 0; thread < threads; ++thread)
        callers.emplace_back([&logger, thread] {
            for (int line = 0; line < lines; ++line)
                logger.log(std::to_string(thread) + " " + std::to_string(line), "INFO");
        });
    for (auto& caller : callers)
        caller.join();
    logger.flush(30s);

    std::istringstream text(logger.readCurrentLog());
    std::vector<int> next(threads, 0);
    std::string date, time, level;
    for (int thread = 0, line = 0; text >> date >> time >> level >> thread >> line;) {
        ASSERT_EQ(date + " " + time + " " + level, "[2025-03-05 14:07:09] [INFO]");
        ASSERT_EQ(line, next.at(static_cast<std::size_t>(thread))++);
    }
    EXPECT_EQ(next, std::vector<int>(threads, lines));
}

TEST_F(AppLoggerTest, StaysReadableWhenAMessageIsDamagedAndSaysSoWhenTheFileIs) {
    AppLogger logger(folder(), device_, clock_);
    logger.log("cut \xE1\xBB", "INFO");
    logger.log("whole", "INFO");
    logger.flush(10s);
    const auto text = logger.readCurrentLog();
    EXPECT_TRUE(text.starts_with("[2025-03-05 14:07:09] [INFO] cut \uFFFD")) << text;
    EXPECT_TRUE(text.ends_with("\n[2025-03-05 14:07:09] [INFO] whole\n")) << text;

    std::ofstream(logger.currentLogURL(), std::ios::app) << "\xFF\n";
    EXPECT_EQ(logger.readCurrentLog(), "Không thể đọc nội dung file log.");
}

TEST_F(AppLoggerTest, LosesLinesWithoutAWordWhereTheFolderOrTheFileCannotBe) {
    std::ofstream(temp_ / "Tessaro") << "in the way";
    AppLogger logger(folder(), device_, clock_);
    logger.log("lost", "ERROR");
    logger.flush(10s);
    EXPECT_EQ(logger.readCurrentLog(), "Chưa có log ghi nhận hôm nay.");

    fs::remove(temp_ / "Tessaro");
    fs::create_directories(logger.currentLogURL());
    logger.log("lost as well", "ERROR");
    logger.flush(10s);
    EXPECT_EQ(logger.readCurrentLog(), "Không thể đọc nội dung file log.");

    fs::remove(logger.currentLogURL());
    logger.log("found", "INFO");
    logger.flush(10s);
    EXPECT_EQ(logger.readCurrentLog(), "[2025-03-05 14:07:09] [INFO] found\n");
}
