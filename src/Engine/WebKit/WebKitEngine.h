#pragma once

#include "Engine/Engine.h"
#include "Engine/WebKit/WebKitMedia.h"

#include <memory>
#include <vector>

namespace tessaro {

/// WebKitGTK. It ends the whole program when it cannot start a sandbox.
class WebKitEngine final : public Engine {
public:
    std::string name() const override;
    std::string decodableMedia() const override { return tessaro::decodableMedia(); }
    /// Does what WebKitGTK does, with a program that ends at once.
    bool worksHere() const override;
    WebSession& makeSession(
        const std::filesystem::path& dataFolder, const std::filesystem::path& cacheFolder) override;

private:
    /// Kept, because WebKitGTK crashes when the last view of a session takes it along.
    std::vector<std::unique_ptr<WebSession>> sessions_;
};

} // namespace tessaro
