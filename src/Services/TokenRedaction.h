#pragma once

#include "Platform/SecretText.h"

#include <string>
#include <string_view>

namespace tessaro {

/// The token percent-encoded for a URL query (RFC 3986, section 3.4).
std::string encodedForQuery(const SecretText& token);

/// The text with "…" for every occurrence of the token, also where some or all of its bytes are
/// percent-encoded. What is too short to be a secret is left alone.
std::string redacted(std::string_view text, const SecretText& token);

} // namespace tessaro
