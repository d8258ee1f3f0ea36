#pragma once

#include "Platform/Desktop.h"

namespace tessaro {

/// The desktop of the default display. In a confined package addresses go through the portal.
class GtkDesktop final : public Desktop {
public:
    void openAddress(const std::string& address) override;
    void copyText(const std::string& text) override;
};

} // namespace tessaro
