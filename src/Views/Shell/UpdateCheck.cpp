#include "Views/Shell/UpdateCheck.h"

#include "Services/VersionComparison.h"

namespace tessaro {

UpdateCheck::UpdateCheck(
    SupportClient& support, AppLogger& logger, Modals& modals, Desktop& desktop)
    : support_(support), logger_(logger), modals_(modals), desktop_(desktop) {}

void UpdateCheck::checkForUpdates() {
    check().detach();
}

Task<void> UpdateCheck::check() {
    const auto alive = lifetime_.watch();
    const auto info = co_await support_.checkUpdate();
    if (!alive)
        co_return;
    if (!info)
        logger_.log("Lỗi kiểm tra cập nhật: " + info.error().message, "ERROR");
    else if (isNewerVersion(info->version, currentVersion) && !alertIsShown_)
        showUpdateAlert(*info);
}

void UpdateCheck::showUpdateAlert(const UpdateInfo& info) {
    static constexpr std::size_t updateNow = 1;
    alertIsShown_ = true;
    modals_.show(
        {.title = "Bản Cập Nhật Mới",
         .message = "Phiên bản mới: " + info.version + "\n\nNội dung:\n" + info.notes,
         .buttons = {"Để sau", "Cập nhật ngay"}},
        [this, alive = lifetime_.watch(), url = info.url](std::optional<std::size_t> button) {
            if (!alive)
                return;
            alertIsShown_ = false;
            if (button == updateNow)
                desktop_.openAddress(url);
        });
}

} // namespace tessaro
