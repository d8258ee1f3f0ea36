#include "DemoPages.h"

#include <algorithm>
#include <map>

namespace tessaro::demo {

const std::vector<DemoPage>& demoPages() {
    static const std::vector<DemoPage> pages{
        {"100231450000101", "Tiệm Hoa Nắng Mai", "demo-page-token-hoa", Motif::flower},
        {"100231450000202", "Cà Phê Góc Phố", "demo-page-token-caphe", Motif::cup},
        {"100231450000303", "Sách Cũ Mùa Thu", "demo-page-token-sach", Motif::book},
        {"100231450000404", "Bếp Nhà Lúa", "demo-page-token", Motif::none},
    };
    return pages;
}

const std::vector<DemoPage>& chainPages() {
    static const auto pages = [] {
        std::vector<DemoPage> result;
        for (int number = 1; number <= 60; ++number) {
            const std::string text = std::to_string(number);
            result.push_back(
                {std::to_string(100231450001000 + number), "Cửa hàng Đồng Quê số " + text,
                 "demo-page-token-chain-" + text, Motif::none});
        }
        return result;
    }();
    return pages;
}

const DemoPage* findPage(std::string_view id) {
    for (const auto* pages : {&demoPages(), &chainPages()})
        if (const auto found = std::ranges::find(*pages, id, &DemoPage::id); found != pages->end())
            return &*found;
    return nullptr;
}

const TokenOwner* findOwner(std::string_view token) {
    static const auto owners = [] {
        const auto& pages = demoPages();
        std::map<std::string, TokenOwner, std::less<>> result;
        TokenOwner chain{"122100000000003", "Người dùng sáu mươi Page", nullptr};
        for (const auto& page : chainPages())
            chain.managed.push_back(&page);
        result["demo-chain-token"] = chain;
        for (const auto* list : {&pages, &chainPages()})
            for (const auto& page : *list)
                result[page.token] = {page.id, page.name, &page};
        result["demo-user-token"] = {
            "122100000000001", "Người dùng minh họa", nullptr, {&pages[0], &pages[1], &pages[2]}};
        result["demo-single-token"] = {
            "122100000000002", "Người dùng một Page", nullptr, {&pages[1]}};
        return result;
    }();
    const auto found = owners.find(token);
    return found == owners.end() ? nullptr : &found->second;
}

} // namespace tessaro::demo
