#pragma once

namespace tessaro {

/// Makes the style sheet and the symbols that are compiled into the program known to the toolkit.
/// Once per process, after the toolkit was initialised.
void registerResources();

} // namespace tessaro
