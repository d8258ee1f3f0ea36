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

void expectView(const Walk& walk, const std::string& what, const nlohmann::json& wanted) {
    walk.expect("the page to say: " + what, [&] {
        const auto view = walk.server().view();
        for (const auto& [key, value] : wanted.items())
            if (!view.is_object() || view.value(key, nlohmann::json()) != value)
                return false;
        return true;
    });
}

void clickAnswer(const Walk& walk) {
    // Counted from the page's lower right corner, which is that of the window but for the footer.
    constexpr int footer = 28;
    const auto window = walk.window();
    const auto answer = walk.server().view()["answerMiddle"];
    const double points = walk.look().text * walk.look().scale;
    walk.screen().click(
        window.x + window.width + static_cast<int>(answer["x"].get<double>() * points),
        window.y + window.height - footer * walk.look().scale +
            static_cast<int>(answer["y"].get<double>() * points));
    // The page had its cursor there already if only another window has had the keyboard meanwhile.
    walk.expect("the window to have the keyboard", [&] {
        return walk.see(mainWindow()).has(ATSPI_STATE_ACTIVE);
    });
    expectView(walk, "the cursor is in its text field", {{"focus", "answer"}});
}

void focusOn(const Walk& walk, const std::string& wanted) {
    clickAnswer(walk);
    for (auto view = walk.server().view(); view.value("focus", "") != wanted;
         view = walk.server().view()) {
        walk.screen().typeKey("Tab", shift);
        walk.expect("the keyboard to go on to " + wanted, [&] {
            return walk.server().view()["stop"] != view["stop"];
        });
    }
}

} // namespace tessaro::demo
