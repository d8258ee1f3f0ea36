#include "Views/Shell/WindowCommand.h"

#include "Views/Widgets/InboxCommands.h"

namespace tessaro {

const std::vector<WindowCommand>& conversationCommands() {
    static const std::vector<WindowCommand> commands{
        {"focus-search-field", "Tìm kiếm cuộc trò chuyện", {"<Control>k"}, focusSearchField},
        {"refresh-inbox", "Làm mới hộp thư", {"<Control>r"}, refreshInbox},
    };
    return commands;
}

const std::vector<WindowCommand>& browserCommands() {
    static const std::vector<WindowCommand> commands{
        {"go-home", "Quay về Hộp thư", {"<Alt>Home"}, webViewGoHome},
        {"reload", "Tải lại trang", {"F5"}, webViewReload},
        {"find", "Tìm trong trang", {"<Control>f"}, webViewFind},
        {"zoom-in",
         "Phóng to",
         {"<Control>plus", "<Control>equal", "<Control>KP_Add"},
         webViewZoomIn},
        {"zoom-out", "Thu nhỏ", {"<Control>minus", "<Control>KP_Subtract"}, webViewZoomOut},
        {"zoom-reset", "Về cỡ ban đầu", {"<Control>0", "<Control>KP_0"}, webViewZoomReset},
    };
    return commands;
}

} // namespace tessaro
