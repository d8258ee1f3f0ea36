#pragma once

#include "HttpTypes.h"

namespace tessaro::demo {

/// Answers "/v25.0/…" as the Graph API does: a token's own object, the Pages of a user token, and
/// pictures, which lie under "/cdn/" without a token.
Reply answerGraph(const Request& request);
Reply answerPicture(const Request& request);

} // namespace tessaro::demo
