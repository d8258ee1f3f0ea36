#include "Steps.h"

namespace tessaro::demo {

namespace {

void save(Walk& walk, std::size_t accountsAfterwards) {
    finishAccount(walk);
    walk.expect("the account in accounts.json", [&] {
        return readRecords(walk, "accounts.json").size() == accountsAfterwards;
    });
}

} // namespace

void walkAccounts(Walk& walk) {
    walk.step("Start the program: version 1.3.0 is offered");
    walk.startProgram();
    walk.see(dialog("Bản Cập Nhật Mới"));
    walk.picture("update-alert");
    walk.press(button("Để sau"));
    walk.seeGone(dialog("Bản Cập Nhật Mới"));

    walk.step("The window is empty");
    walk.see(label("Chọn một Page để mở hộp thư"));
    walk.picture("empty-window");

    walk.step("Add an account without a proxy");
    walk.press(button("Thêm tài khoản"));
    walk.see(dialog("Thêm tài khoản mới"));
    walk.picture("account-sheet-empty");
    walk.press(button("Hủy"));
    walk.seeGone(dialog("Thêm tài khoản mới"));
    beginAccount(walk, firstAccount);
    walk.picture("account-sheet-filled");
    save(walk, 1);
    walk.see(button(firstAccount));

    walk.step("Add an account with a proxy");
    beginAccount(walk, proxyAccount);
    walk.press(button("CẤU HÌNH PROXY"));
    walk.type(field("Host"), "proxy.example");
    walk.type(field("Port"), "80800");
    walk.see(label("Port phải là một số từ 1 đến 65535."));
    walk.picture("account-sheet-wrong-port");
    walk.type(field("Port"), "8080");
    walk.seeGone(label("Port phải là một số từ 1 đến 65535."));
    walk.type(field("Username"), "minhhoa");
    walk.picture("account-sheet-proxy");
    save(walk, 2);
    const auto account = readRecords(walk, "accounts.json")[1];
    if (account["proxyHost"] != "proxy.example" || account["proxyPort"] != 8080 ||
        account["proxyEnabled"] != true)
        throw WalkFailure("the proxy was not stored");

    walk.step("Add a third account");
    beginAccount(walk, secondAccount);
    save(walk, 3);
    walk.picture("several-accounts");
}

} // namespace tessaro::demo
