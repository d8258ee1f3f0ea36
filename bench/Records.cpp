#include "Records.h"

#include "Models/RecordList.h"
#include "Platform/FileStore.h"
#include "Platform/Paths.h"
#include "support/StoreWorld.h"

#include <stdexcept>

namespace tessaro::bench {

namespace {

void write(const std::filesystem::path& file, const std::string& bytes) {
    std::filesystem::create_directories(file.parent_path());
    if (!replaceFile(file, bytes))
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

std::vector<Account> makeAccounts(int count) {
    std::vector<Account> accounts;
    for (int i = 0; i < count; ++i)
        accounts.push_back(test::makeAccount("Tài khoản " + std::to_string(i)));
    return accounts;
}

std::vector<PageConfig> makePages(const std::vector<Account>& accounts, int count) {
    std::vector<PageConfig> pages;
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        pages.push_back(test::makePage(
            accounts[i % accounts.size()], std::to_string(1000 + i),
            "Cửa hàng " + std::to_string(i)));
    return pages;
}

void writeRecords(
    const std::vector<Account>& accounts, const std::vector<PageConfig>& pages,
    const std::string& origin) {
    write(paths::dataFolder() / "accounts.json", encodeList(accounts));
    write(paths::dataFolder() / "pages.json", encodeList(pages));
    std::string settings = "[settings]\n";
    for (const auto* server : {"graph_api_origin", "inbox_origin", "skarn_server_url"})
        settings += std::string(server) + "=" + origin + "\n";
    write(paths::settingsFile(), settings);
}

} // namespace tessaro::bench
