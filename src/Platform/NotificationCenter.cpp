#include "Platform/NotificationCenter.h"

namespace tessaro {

NotificationCenter& NotificationCenter::shared() {
    static NotificationCenter center;
    return center;
}

void NotificationCenter::post(
    const std::string& name, std::map<std::string, std::string> userInfo) {
    const auto found = observers_.find(name);
    if (found != observers_.end())
        found->second.emit(Announcement{std::move(userInfo)});
}

ScopedConnection NotificationCenter::observe(const std::string& name, Handler handler) {
    return ScopedConnection(observers_[name].connect(std::move(handler)));
}

} // namespace tessaro
