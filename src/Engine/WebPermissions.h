#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaro {

/// What the pages in one web view want to do that the person must permit. Without a delegate every
/// request is refused. UI thread only.
class WebPermissions {
public:
    enum class Kind { notifications, microphone, camera };
    struct Request {
        std::vector<Kind> kinds; ///< Granted or refused as a whole.
        /// Whether the person clicked or pressed a key in this very page within the last seconds.
        bool followsInput = false;
    };
    /// What pages record with at this moment.
    struct Recording {
        bool microphone = false;
        bool camera = false;
    };
    class Delegate {
    public:
        virtual ~Delegate() = default;
        /// The page waits for the answer; dropping it refuses.
        virtual void didRequestPermission(Request request, std::function<void(bool)> answer) = 0;
        /// A page was refused what no page gets, such as "Geolocation".
        virtual void didRefuse(const std::string& kind) = 0;
        virtual void didChangeRecording(Recording recording) = 0;
    };

    virtual ~WebPermissions() = default;

    /// The delegate must outlive this object or be replaced by nullptr.
    virtual void setDelegate(Delegate* delegate) = 0;
};

} // namespace tessaro
