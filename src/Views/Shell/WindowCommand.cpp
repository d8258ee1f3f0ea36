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
        {post(webViewReload), "Tải lại trang", {"F5"}},
        {"win.find", "Tìm trong trang", {"<Control>f"}},
        {post(webViewZoomIn), "Phóng to", {"<Control>plus", "<Control>equal", "<Control>KP_Add"}},
        {post(webViewZoomOut), "Thu nhỏ", {"<Control>minus", "<Control>KP_Subtract"}},
        {"win.zoom-reset", "Về cỡ ban đầu", {"<Control>0", "<Control>KP_0"}},
    };
    return commands;
}

} // namespace tessaro
