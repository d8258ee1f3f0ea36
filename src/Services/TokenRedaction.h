#pragma once

#include "Platform/SecretText.h"

#include <string>
#include <string_view>

namespace tessaro {

/// The token percent-encoded for a URL query (RFC 3986, section 3.4).
std::string encodedForQuery(const SecretText& token);

/// The text with "…" in place of every occurrence of the token, even where bytes of it are
/// percent-encoded. A token that is too short to be a secret is not replaced.
std::string redacted(std::string_view text, const SecretText& token);

} // namespace tessaro
