#include "Services/AppLogger.h"

#include "Platform/FileStore.h"
#include "support/ScopedEnvironment.h"
#include "support/StoreWorld.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

using namespace tessaro;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

namespace {

/// 2025-03-05 14:07:09 in the time zone of these tests, which is UTC+7.
constexpr std::chrono::sys_seconds afternoon{1'741'158'429s};

class AppLoggerTest : public testing::Test {
protected:
    AppLoggerTest() {
        environment_.set("TZ", "TST-7");
        std::ofstream(world_.folder / "machine-id") << " 0123abc \r\n";
        clock_.advance(std::chrono::ceil<Clock::Delay>(afternoon - clock_.now()));
    }

    void log(const std::string& message, const std::string& level = "INFO") {
        logger_.log(message, level);
        logger_.flush(10s);
    }

    test::ScopedEnvironment environment_;
    test::StoreWorld world_;
    test::ManualClock& clock_ = world_.clock;
    AppLogger& logger_ = world_.logger;
    const fs::path folder_ = world_.folder / "logs";
};

} // namespace

TEST_F(AppLoggerTest, AppendsToTheDaysFileAcrossStartsAndBeginsANewOneAtLocalMidnight) {
    log("Một: é", "WARN");
    clock_.advance(61s);
    log("two\nlines");
    AppLogger nextStart(folder_, world_.device, clock_);
    nextStart.log("three", "ERROR");
    nextStart.flush(10s);

    const auto file = logger_.currentLogURL();
    const std::string text = "[2025-03-05 14:07:09] [WARN] Một: é\n"
                             "[2025-03-05 14:08:10] [INFO] two\nlines\n"
                             "[2025-03-05 14:08:10] [ERROR] three\n";
    EXPECT_EQ(file, folder_ / "0123abc-05-03-2025.log");
    EXPECT_EQ(logger_.readCurrentLog(), text);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder_).permissions(), fs::perms(0700));

    clock_.advance(10h);
    EXPECT_EQ(logger_.readCurrentLog(), "Chưa có log ghi nhận hôm nay.");
    log("after");
    EXPECT_EQ(logger_.currentLogURL(), folder_ / "0123abc-06-03-2025.log");
    EXPECT_EQ(logger_.readCurrentLog(), "[2025-03-06 00:08:10] [INFO] after\n");
    EXPECT_EQ(readFile(file), text);
}

TEST_F(AppLoggerTest, KeepsTheLinesOfManyThreadsWholeAndEachThreadsInOrder) {
    constexpr int threads = 8, lines = 2000;
    std::vector<std::thread> callers;
    for (int thread = 0; thread < threads; ++thread)
        callers.emplace_back([&, thread] {
            for (int line = 0; line < lines; ++line)
                logger_.log(std::to_string(thread) + " " + std::to_string(line), "INFO");
        });
    for (auto& caller : callers)
        caller.join();
    logger_.flush(30s);

    std::istringstream text(logger_.readCurrentLog());
    std::vector<int> next(threads, 0);
    std::string date, time, level;
    for (int thread = 0, line = 0; text >> date >> time >> level >> thread >> line;) {
        ASSERT_EQ(date + " " + time + " " + level, "[2025-03-05 14:07:09] [INFO]");
        ASSERT_EQ(line, next.at(static_cast<std::size_t>(thread))++);
    }
    EXPECT_EQ(next, std::vector<int>(threads, lines));
}

TEST_F(AppLoggerTest, StaysReadableWhenAMessageIsDamagedAndSaysSoWhenTheFileIs) {
    log("cut \xE1\xBB");
    EXPECT_EQ(logger_.readCurrentLog(), "[2025-03-05 14:07:09] [INFO] cut \uFFFD\n");
    std::ofstream(logger_.currentLogURL(), std::ios::app) << "\xFF\n";
    EXPECT_EQ(logger_.readCurrentLog(), "Không thể đọc nội dung file log.");
}

TEST_F(AppLoggerTest, LosesLinesWithoutAWordWhereTheFolderCannotBe) {
    std::ofstream(folder_) << "in the way";
    log("lost", "ERROR");
    EXPECT_EQ(logger_.readCurrentLog(), "Chưa có log ghi nhận hôm nay.");
    fs::remove(folder_);
    log("found");
    EXPECT_EQ(logger_.readCurrentLog(), "[2025-03-05 14:07:09] [INFO] found\n");
}
