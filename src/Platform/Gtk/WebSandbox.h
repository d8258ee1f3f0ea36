#pragma once

namespace tessaro {

/// Whether web processes can be locked into their sandbox on this system. The engine ends the whole
/// program when it cannot start a sandbox, so ask before the first WebView is made.
///
/// Tries one out, which takes some ten milliseconds, until one has worked. UI thread only.
bool webSandboxWorks();

} // namespace tessaro
