#pragma once

#include <string>

namespace tessaro {

/// Whether `address` is an absolute http or https address (RFC 3986) with a host: the only kind
/// that the program hands to the desktop.
bool isOpenableAddress(const std::string& address);

} // namespace tessaro
