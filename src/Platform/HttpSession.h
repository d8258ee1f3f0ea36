#pragma once

#include "Platform/GHandle.h"
#include "Platform/HttpClient.h"
#include "Platform/Result.h"

#include <libsoup/soup.h>

namespace tessaro {

/// A session of the HTTP library that carries requests as the options say. Fails when the proxy or
/// the authorities cannot be used: a request must then not go out another way. UI thread.
Result<GObjectPtr<SoupSession>> openHttpSession(const HttpOptions& options);

} // namespace tessaro
