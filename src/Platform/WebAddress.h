#pragma once

#include <string>

namespace tessaro {

/// Whether `address` is an absolute http or https address (RFC 3986) with a host: the only kind
/// that the program hands to the desktop.
bool isOpenableAddress(const std::string& address);

/// Scheme, host and port of an http or https address, "https://host:443", by which web pages are
/// told apart (RFC 6454); empty for anything else.
std::string originOf(const std::string& address);

/// The host of an http or https address in lower case, followed by its port where that is not the
/// scheme's own: as it stands in an address that a browser has written. Empty for anything else.
std::string hostOf(const std::string& address);

} // namespace tessaro
