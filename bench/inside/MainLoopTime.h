#pragma once

namespace tessaro::bench {

/// The milliseconds that this thread's main loop has worked since some moment: without its waiting
/// for events, and without what it waited for the processor while other programs had it. Waiting
/// for the disk or the display counts as work. Throws where the kernel does not tell.
double mainLoopTime();

} // namespace tessaro::bench
