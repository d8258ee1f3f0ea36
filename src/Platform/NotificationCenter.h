#pragma once

#include "Platform/ScopedConnection.h"

#include <sigc++/signal.h>

#include <functional>
#include <map>
#include <string>

namespace tessaro {

/// A process-wide announcement. It has no sender.
struct Notification {
    std::string name;
    std::map<std::string, std::string> userInfo;
};

/// Carries announcements between parts of the program that do not know each other. Delivery is
/// synchronous, in order of subscription. UI thread only.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    static NotificationCenter& shared();

    /// Delivers to everybody who observes `name`.
    void post(const std::string& name, std::map<std::string, std::string> userInfo = {});

    /// Calls `handler` for every announcement of that name until the result is dropped.
    [[nodiscard]] ScopedConnection observe(const std::string& name, Handler handler);

private:
    std::map<std::string, sigc::signal<void(const Notification&)>> observers_;
};

} // namespace tessaro
