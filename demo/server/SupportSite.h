#pragma once

#include "HttpTypes.h"

#include <string>
#include <vector>

namespace tessaro::demo {

/// Answers "/api/…": offers a newer version and keeps the logs that are sent in, in memory.
class SupportSite {
public:
    struct Upload {
        std::string uuid;
        std::string filename;
        std::string content;
    };

    Reply answer(const Request& request);
    /// The logs received, oldest first.
    const std::vector<Upload>& uploads() const { return uploads_; }

private:
    Reply takeUpload(const Request& request);

    std::vector<Upload> uploads_;
};

} // namespace tessaro::demo
