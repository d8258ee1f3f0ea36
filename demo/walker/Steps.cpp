#include "Steps.h"

#include <fstream>
#include <iterator>

namespace tessaro::demo {

std::string readFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

nlohmann::json readRecords(const Walk& walk, const char* file) {
    auto records = nlohmann::json::parse(readFile(walk.places().data / file), nullptr, false);
    return records.is_array() ? records : nlohmann::json::array();
}

void beginAccount(Walk& walk, const std::string& name) {
    walk.press(button("Thêm tài khoản"));
    walk.see(dialog("Thêm tài khoản mới"));
    walk.type(field("TÊN TÀI KHOẢN"), name);
}

void finishAccount(Walk& walk) {
    walk.press(button("Thêm tài khoản"));
    walk.seeGone(dialog("Thêm tài khoản mới"));
}

void verifyToken(Walk& walk, const std::string& token, const std::string& expectedLabel) {
    walk.press(button("Thêm Page"));
    walk.see(dialog("Thêm Facebook Page"));
    walk.type(field("ACCESS TOKEN"), token);
    walk.press(button("Xác minh Token"));
    walk.see(label(expectedLabel));
}

void addPage(Walk& walk, std::size_t pagesAfterwards) {
    walk.press(button("Thêm Page"));
    walk.seeGone(dialog("Thêm Facebook Page"));
    walk.expect("the Page in pages.json", [&] {
        return readRecords(walk, "pages.json").size() == pagesAfterwards;
    });
}

} // namespace tessaro::demo
