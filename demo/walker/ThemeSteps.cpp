#include "Steps.h"

namespace tessaro::demo {

namespace {

void expectSetting(const Walk& walk, const std::string& line) {
    walk.expect("the setting " + line, [&] {
        return readFile(walk.places().settings).find("\n" + line + "\n") != std::string::npos;
    });
}

void expectDark(const Walk& walk, bool dark) {
    walk.expect(dark ? "the inbox to turn dark" : "the inbox to turn light", [&] {
        return walk.server().view()["dark"] == dark;
    });
}

} // namespace

void walkTheme(Walk& walk) {
    walk.step("Turn everything dark, the inbox too");
    walk.press(button("Chuyển chế độ Sáng/Tối"));
    expectDark(walk, true);
    expectSetting(walk, "theme_appearance_mode=dark");
    walk.picture("inbox-dark");

    walk.step("Choose the accent gold");
    walk.press(button("Cấu hình Giao diện màu sắc"));
    walk.see(label("Cấu hình Giao diện"));
    walk.press(button("Vàng hoàng kim (Gold)"));
    walk.see(label("Vàng hoàng kim (Gold)"));
    expectSetting(walk, "theme_active_preset_id=gold");
    walk.picture("theme-popover-gold-dark");
    walk.screen().typeKey("Escape");

    walk.step("Sheets in dark");
    walk.press(button("Thêm tài khoản"));
    walk.see(dialog("Thêm tài khoản mới"));
    walk.picture("account-sheet-dark");
    walk.press(button("Hủy"));
    walk.seeGone(dialog("Thêm tài khoản mới"));
    verifyToken(walk, "demo-user-token", "Đây là User Token. Chọn Page bạn muốn kết nối:");
    walk.press(button("Sách Cũ Mùa Thu"));
    walk.picture("page-sheet-dark");
    walk.press(button("Hủy"));
    walk.seeGone(dialog("Thêm Facebook Page"));

    walk.step("Back to light");
    walk.press(button("Chuyển chế độ Sáng/Tối"));
    expectDark(walk, false);
}

} // namespace tessaro::demo
