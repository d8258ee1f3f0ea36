#pragma once

#include <functional>
#include <string>

namespace tessaro {

/// The desktop notifications that the pages in one web view show, once they are permitted
/// (WebPermissions). UI thread only.
class WebNotifications {
public:
    /// What a page wants to be shown, in plain text.
    struct Content {
        std::string id;
        std::string title;
        std::string body;
    };
    class Delegate {
    public:
        virtual ~Delegate() = default;
        virtual void show(const Content& content) = 0;
        /// The page has closed the notification, or is gone itself.
        virtual void didClose(const std::string& id) = 0;
    };

    /// Tells the origin that has permission without having to ask; empty for none.
    using PermittedOrigin = std::function<std::string()>;

    virtual ~WebNotifications() = default;

    /// The delegate must outlive this object or be replaced by nullptr, after which no process that
    /// starts is permitted anything.
    virtual void setDelegate(Delegate* delegate) = 0;
    /// Tells the page that the person chose the notification; does nothing once it is closed.
    virtual void click(const std::string& id) = 0;
};

} // namespace tessaro
