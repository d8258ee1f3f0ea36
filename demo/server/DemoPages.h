#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaro::demo {

/// What a Page's picture shows; none makes the program draw the name's initial.
enum class Motif { none, flower, cup, book };

/// One made-up Page.
struct DemoPage {
    std::string id;
    std::string name;
    std::string token; ///< Its own Page token.
    Motif motif = Motif::none;
};

/// The Pages of the user token, in the order of the Graph API's answer, then the one whose Page
/// token can be pasted.
const std::vector<DemoPage>& demoPages();
/// The sixty Pages of a chain of shops, more than the Graph API gives at once.
const std::vector<DemoPage>& chainPages();
/// Null when no Page has that id.
const DemoPage* findPage(std::string_view id);

/// What a demo token stands for.
struct TokenOwner {
    std::string id;
    std::string name;
    const DemoPage* page = nullptr;         ///< The Page, for a Page token.
    std::vector<const DemoPage*> managed{}; ///< The Pages of a user token.
};

/// Null when the token is none of the demo's.
const TokenOwner* findOwner(std::string_view token);

} // namespace tessaro::demo
