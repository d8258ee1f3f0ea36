#include "Views/Shell/WindowCommand.h"

#include "Views/Widgets/InboxCommands.h"

namespace tessaro {

namespace {

std::string post(const char* notification) {
    return std::string("win.post::") + notification;
}

} // namespace

const std::vector<WindowCommand>& windowCommands() {
    static const std::vector<WindowCommand> commands{
        {post(focusSearchField), "Tìm kiếm cuộc trò chuyện", {"<Control>k"}, true},
        {post(refreshInbox), "Làm mới hộp thư", {"<Control>r"}, true},
        {post(webViewGoHome), "Quay về Hộp thư", {"<Alt>Home"}},
        {"win.history(false)", "Quay lại trang trước", {"<Alt>Left"}},
        {"win.history(true)", "Đi tới trang sau", {"<Alt>Right"}},
        {post(webViewReload), "Tải lại trang", {"F5"}},
        {"win.find", "Tìm trong trang", {"<Control>f"}},
        {post(webViewZoomIn), "Phóng to", {"<Control>plus", "<Control>equal", "<Control>KP_Add"}},
        {post(webViewZoomOut), "Thu nhỏ", {"<Control>minus", "<Control>KP_Subtract"}},
        {"win.zoom-reset", "Về cỡ ban đầu", {"<Control>0", "<Control>KP_0"}},
        {"win.area(true)", "Sang vùng kế tiếp của cửa sổ", {"F6"}},
        {"win.area(false)", "Về vùng trước của cửa sổ", {"<Shift>F6"}},
        {"window.close", "Đóng cửa sổ", {"<Control>w"}},
        {"app.quit", "Thoát", {"<Control>q"}},
    };
    return commands;
}

} // namespace tessaro
