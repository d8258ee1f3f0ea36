#pragma once

#include "Platform/ScopedConnection.h"

#include <sigc++/signal.h>

#include <functional>
#include <map>
#include <string>

namespace tessaro {

/// What a process-wide announcement says. It does not tell who sent it.
struct Announcement {
    std::map<std::string, std::string> userInfo;
};

/// Carries announcements between parts of the program that do not know each other. Observers are
/// called within post(), in the order in which they subscribed. UI thread only.
class NotificationCenter {
public:
    using Handler = std::function<void(const Announcement&)>;

    static NotificationCenter& shared();

    /// Calls every observer of `name`.
    void post(const std::string& name, std::map<std::string, std::string> userInfo = {});

    /// Calls `handler` for every announcement of that name until the result is dropped.
    [[nodiscard]] ScopedConnection observe(const std::string& name, Handler handler);

private:
    std::map<std::string, sigc::signal<void(const Announcement&)>> observers_;
};

} // namespace tessaro
