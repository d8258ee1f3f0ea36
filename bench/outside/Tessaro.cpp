#include "outside/Tessaro.h"

#include "outside/FirstFrame.h"

#include "Models/RecordList.h"
#include "Platform/FileStore.h"
#include "Platform/Paths.h"
#include "support/StoreWorld.h"

#include <stdexcept>
#include <thread>

namespace tessaro::bench {

namespace {

// Middles of the first buttons in the two columns, below the header bar.
constexpr int accountColumn = 28, pageColumn = 85, firstRow = 74, rowHeight = 44;

void write(const std::filesystem::path& file, const std::string& bytes) {
    std::filesystem::create_directories(file.parent_path());
    if (!replaceFile(file, bytes))
        throw std::runtime_error("cannot write " + file.string());
}

void writeRecords(const Site& site) {
    std::vector<Account> accounts;
    std::vector<PageConfig> pages;
    for (int i = 0; i < Tessaro::accountCount; ++i)
        accounts.push_back(test::makeAccount("Tài khoản " + std::to_string(i)));
    for (int i = 0; i < Tessaro::pageCount; ++i)
        pages.push_back(test::makePage(
            accounts.front(), std::to_string(1000 + i), "Cửa hàng " + std::to_string(i)));
    write(paths::dataFolder() / "accounts.json", encodeList(accounts));
    write(paths::dataFolder() / "pages.json", encodeList(pages));
    std::string settings = "[settings]\n";
    for (const auto* origin : {"graph_api_origin", "inbox_origin", "skarn_server_url"})
        settings += std::string(origin) + "=" + site.origin() + "\n";
    write(paths::settingsFile(), settings);
}

} // namespace

Tessaro::Tessaro(const Site& site) : site_(site) {
    writeRecords(site);
    FirstFrame frame;
    process_ = std::make_unique<Running>(std::vector<std::string>{TESSARO_PROGRAM});
    frame.wait();
    toFirstFrame_ = millisecondsSince(process_->started());
}

void Tessaro::click(int x, int y) const {
    const auto window = screen_.findWindow("Tessaro");
    if (!window)
        throw std::runtime_error("the window is gone");
    screen_.click(window->x + x, window->y + y);
}

void Tessaro::showPages() {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    click(accountColumn, firstRow);
    std::this_thread::sleep_for(std::chrono::seconds(2));
}

double Tessaro::openPage(int index) {
    const auto before = site_.runs();
    const auto start = Clock::now();
    click(pageColumn, firstRow + index * rowHeight);
    site_.waitForRunAfter(before);
    return millisecondsSince(start);
}

void Tessaro::openNextPage() {
    const auto before = site_.runs();
    screen_.typeKey("Down");
    screen_.typeKey("space");
    site_.waitForRunAfter(before);
}

} // namespace tessaro::bench
