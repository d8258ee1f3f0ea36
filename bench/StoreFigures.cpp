#include "Figure.h"

#include "Models/PageConfig.h"
#include "Platform/FileStore.h"
#include "Services/RecordFile.h"
#include "support/TempFolder.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <stdexcept>
#include <string>

namespace tessaro::bench {

namespace {

constexpr std::size_t accountCount = 1'000;

/// A file with that number of Pages, spread over a thousand accounts.
class PagesOnDisk {
public:
    explicit PagesOnDisk(std::size_t count) {
        std::vector<AccountId> accounts;
        for (std::size_t i = 0; i < accountCount; ++i)
            accounts.push_back(AccountId::random());
        for (std::size_t i = 0; i < count; ++i)
            pages_.push_back(
                {.id = PageConfigId::random(),
                 .accountId = accounts[i % accountCount],
                 .pageToken = SecretText(std::string(180, 'T')),
                 .pageId = {std::to_string(100'000'000'000'000 + i)},
                 .pageName = "Cửa hàng số " + std::to_string(i),
                 .pageAvatarUrl = "https://pictures.example/" + std::to_string(i) + ".jpg",
                 .isConnected = true,
                 .createdAt = std::chrono::floor<std::chrono::microseconds>(
                     std::chrono::system_clock::now())});
        store().save(pages_);
        bytes_ = *readFile(file_);
        value_ = nlohmann::json::parse(bytes_);
        if (value_.dump(2) != bytes_)
            throw std::runtime_error("the bare dump writes other bytes than the program");
    }

    double load() const {
        auto fresh = store();
        return milliseconds([&] { expect(fresh.load().size()); });
    }
    /// Reading the file is part of both times.
    double bareParse() const {
        return milliseconds([&] { expect(nlohmann::json::parse(*readFile(file_)).size()); });
    }
    double save() const {
        auto copy = pages_;
        auto fresh = store();
        return milliseconds([&] { fresh.save(std::move(copy)); });
    }
    double bareDump() const {
        return milliseconds([&] {
            if (!replaceFile(folder_ / "bare.json", value_.dump(2)))
                throw std::runtime_error("the bare file cannot be written");
        });
    }

private:
    RecordFile<PageConfig> store() const {
        return {file_, decodePageConfig, SystemClock::shared()};
    }
    void expect(std::size_t count) const {
        if (count != pages_.size())
            throw std::runtime_error("not all Pages were read");
    }

    test::TempFolder folder_;
    std::filesystem::path file_ = folder_ / "pages.json";
    std::vector<PageConfig> pages_;
    std::string bytes_;
    nlohmann::json value_;
};

} // namespace

Figures storeFigures() {
    const auto pages = std::make_shared<PagesOnDisk>(10'000);
    return {
        {"load 10,000 Pages",
         "ms",
         [=] { return pages->load(); },
         {{1.5, "bare parse", [=] { return pages->bareParse(); }}}},
        {"save 10,000 Pages",
         "ms",
         [=] { return pages->save(); },
         {{1.5, "bare dump and durable write", [=] { return pages->bareDump(); }}}}};
}

} // namespace tessaro::bench
