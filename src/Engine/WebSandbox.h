#pragma once

namespace tessaro {

/// Whether web processes can be locked into their sandbox on this system. The engine ends the whole
/// program when it cannot start a sandbox, so ask before the first WebView is made.
///
/// Does what the engine does, with a program that ends at once; takes some ten milliseconds.
bool webSandboxWorks();

} // namespace tessaro
