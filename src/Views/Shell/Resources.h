#pragma once

namespace tessaro {

/// Gives the toolkit the style sheet and the symbols that are compiled into the program. To be
/// called once per process, after the toolkit was initialised.
void registerResources();

} // namespace tessaro
