#include "Services/NotificationService.h"

#include <utility>

namespace tessaro {

namespace {

/// @param logger  outlives the request
Task<void> logOutcome(Task<Result<void>> request, AppLogger* logger) {
    const auto granted = co_await std::move(request);
    if (granted)
        logger->log("NotificationService: Quyền thông báo đã được cấp.", "INFO");
    else
        logger->log("NotificationService: Lỗi yêu cầu quyền: " + granted.error().message, "ERROR");
}

} // namespace

NotificationService::NotificationService(AppLogger& logger, bool isConfined)
    : logger_(logger), isConfined_(isConfined) {}

NotificationService& NotificationService::shared() {
    static NotificationService service(AppLogger::shared());
    return service;
}

void NotificationService::requestPermission() {
    logOutcome(askForNotifications(isConfined_), &logger_).detach();
}

} // namespace tessaro
