#include "Figure.h"
#include "Table.h"

#include "Platform/FileStore.h"
#include "Platform/SettingsStore.h"
#include "Services/AppLogger.h"
#include "support/TempFolder.h"

#include <spdlog/async.h>
#include <spdlog/sinks/basic_file_sink.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace tessaro::bench {

namespace {

const std::string message = "Graph API answered 200 for the Pages of one account after 184 ms";
constexpr int timedCalls = 20'000;

/// The median of single calls, in microseconds.
template <typename Call>
double medianCall(Call call) {
    std::vector<double> taken;
    taken.reserve(timedCalls);
    for (int i = 0; i < timedCalls; ++i)
        taken.push_back(milliseconds(call) * 1'000);
    return median(std::move(taken));
}

/// The program's logger in a folder of its own.
struct OwnLog {
    test::TempFolder folder;
    SettingsStore settings{folder / "settings.ini"};
    DeviceIdentity device{settings};
    AppLogger logger{folder / "logs", device, SystemClock::shared()};
};

double ownCall() {
    OwnLog log;
    const auto taken = medianCall([&] { log.logger.log(message, "INFO"); });
    log.logger.flush(std::chrono::minutes(1));
    return taken;
}

/// With room for every line, so that no call waits for the file.
double peerCall() {
    const test::TempFolder folder;
    const auto pool = std::make_shared<spdlog::details::thread_pool>(2 * timedCalls, 1);
    const auto sink =
        std::make_shared<spdlog::sinks::basic_file_sink_mt>((folder / "peer.log").string());
    const auto logger = std::make_shared<spdlog::async_logger>(
        "peer", sink, pool, spdlog::async_overflow_policy::block);
    logger->set_pattern("[%Y-%m-%d %H:%M:%S] [%l] %v");
    return medianCall([&] { logger->info(message); });
}

/// Microseconds for each line, from the first call until the last line is in the file.
double lineToFile(int lines) {
    OwnLog log;
    const auto taken = milliseconds([&] {
        for (int i = 0; i < lines; ++i)
            log.logger.log(message, "INFO");
        log.logger.flush(std::chrono::minutes(2));
    });
    const auto text = readFile(log.logger.currentLogURL());
    if (!text || std::ranges::count(*text, '\n') != lines)
        throw std::runtime_error("not every log line reached the file");
    return taken * 1'000 / lines;
}

} // namespace

Figures logFigures() {
    const auto small = [] { return lineToFile(10'000); };
    return {
        {"log call, on the caller",
         "µs",
         ownCall,
         {{2, {}, {}}, {3, "spdlog, asynchronous", peerCall}}},
        // 5 µs for each line are 200,000 lines a second.
        {"1,000,000 log lines to the file, each",
         "µs",
         [] { return lineToFile(1'000'000); },
         {{5, {}, {}}}},
        {"log growth, 10 times the lines",
         "µs",
         [] { return lineToFile(100'000); },
         {{1.2, "10,000 lines, each", small}}},
        {"log growth, 100 times the lines",
         "µs",
         [] { return lineToFile(1'000'000); },
         {{1.2, "10,000 lines, each", small}}},
    };
}

} // namespace tessaro::bench
