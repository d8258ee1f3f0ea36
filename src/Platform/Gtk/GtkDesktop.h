#pragma once

#include "Platform/Desktop.h"

namespace tessaro {

/// The desktop of the default display. In a confined package addresses and folders go through the
/// portal.
class GtkDesktop final : public Desktop {
public:
    void openAddress(const std::string& address) override;
    void openFolder(const std::filesystem::path& folder) override;
    void copyText(const std::string& text) override;
};

} // namespace tessaro
