#pragma once

#include <string>

namespace tessaro {

/// Whether `address` is an absolute http or https address (RFC 3986) with a host. The program hands
/// no other address to the desktop. HttpClient accepts less: it sends an address as it stands,
/// while the desktop's browser encodes what stands behind the host.
bool isOpenableAddress(const std::string& address);

/// The origin of an http or https address (RFC 6454) with its port, "https://host:443"; empty for
/// any other text.
std::string originOf(const std::string& address);

/// The host of an http or https address in lower case, followed by its port unless that is the
/// scheme's own, as browsers write it. Empty for any other text.
std::string hostOf(const std::string& address);

} // namespace tessaro
