#include "Steps.h"

namespace tessaro::demo {

namespace {

constexpr const char* badTokenError = "Invalid OAuth access token - Cannot parse access token";
constexpr const char* userTokenNote = "Đây là User Token. Chọn Page bạn muốn kết nối:";
constexpr const char* pickedNote = "Page đã chọn — sẽ dùng Page Access Token";
constexpr const char* pageTokenNote = "Page Token hợp lệ";

void walkBadToken(Walk& walk) {
    walk.step("Open the add-Page sheet and try a token that is none");
    walk.press(button(firstAccount));
    walk.press(button("Thêm Page"));
    walk.see(dialog("Thêm Facebook Page"));
    walk.picture("page-sheet-empty");
    walk.type(field("ACCESS TOKEN"), "demo-no-token");
    walk.picture("page-sheet-token-typed");
    walk.press(button("Xác minh Token"));
    walk.see(label(badTokenError));
    walk.picture("page-sheet-error");
}

void walkUserToken(Walk& walk) {
    walk.step("Verify a user token: three Pages are offered");
    walk.type(field("ACCESS TOKEN"), "demo-user-token");
    walk.server().hold("graph");
    walk.press(button("Xác minh Token"));
    walk.seeGone(field("Lọc theo tên Page"));
    walk.picture("page-sheet-verifying", std::chrono::milliseconds(300));
    walk.server().release("graph");
    walk.see(label(userTokenNote));
    walk.see(button("Cà Phê Góc Phố"));
    walk.see(button("Sách Cũ Mùa Thu"));
    walk.picture("page-sheet-user-token");

    walk.step("Pick a Page");
    walk.press(button("Tiệm Hoa Nắng Mai"));
    walk.see(label(pickedNote));
    walk.picture("page-sheet-picked");
}

void walkLongList(Walk& walk) {
    walk.step("Verify a token of sixty Pages: they come in parts and can be filtered by name");
    walk.type(field("ACCESS TOKEN"), "demo-chain-token");
    walk.press(button("Xác minh Token"));
    walk.see(label("25 Page"));
    walk.picture("page-sheet-long-list");
    walk.press(button("Tải thêm Page"));
    walk.see(label("50 Page"));
    walk.press(button("Tải thêm Page"));
    walk.see(label("60 Page"));
    walk.seeGone(button("Tải thêm Page"));
    walk.type(field("Lọc theo tên Page"), "dong que so 6");
    walk.see(label("2 trong 60 Page"));
    walk.see(button("Cửa hàng Đồng Quê số 60"));
    walk.picture("page-sheet-filtered");
}

/// The stored record and picture of the Page that was added last.
void checkStored(const Walk& walk, const std::string& name, const std::string& token) {
    const auto page = readRecords(walk, "pages.json").back();
    if (page["pageName"] != name || page["pageToken"] != token)
        throw WalkFailure("another Page was stored than the one picked");
    const auto picture =
        walk.places().data / "avatars" / (page["pageId"].get<std::string>() + ".jpg");
    walk.expect(picture.string(), [&] { return readFile(picture).starts_with("\x89PNG"); });
}

} // namespace

void walkPages(Walk& walk) {
    walkBadToken(walk);
    walkLongList(walk);
    walkUserToken(walk);

    walk.step("Add it: its inbox loads and is shown");
    walk.server().hold("inbox");
    addPage(walk, 1);
    checkStored(walk, "Tiệm Hoa Nắng Mai", "demo-page-token-hoa");
    walk.see(label("Đang tải hộp thư..."));
    walk.picture("inbox-loading", std::chrono::milliseconds(300));
    walk.server().release("inbox");
    walk.seeGone(label("Đang tải hộp thư..."));

    walk.step("Verify a Page token and add its Page, which has no picture");
    verifyToken(walk, "demo-page-token", pageTokenNote);
    walk.picture("page-sheet-page-token");
    addPage(walk, 2);
    walk.see(button("Bếp Nhà Lúa"));

    walk.step("A user token of one Page has it picked already");
    verifyToken(walk, "demo-single-token", pickedNote);
    walk.picture("page-sheet-single");
    addPage(walk, 3);
    checkStored(walk, "Cà Phê Góc Phố", "demo-page-token-caphe");
    walk.see(button("Cà Phê Góc Phố, 1 chưa đọc"));
}

} // namespace tessaro::demo
