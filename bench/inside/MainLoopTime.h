#pragma once

namespace tessaro::bench {

/// The milliseconds that this thread's main loop has worked since some fixed moment. Waiting for
/// events does not count, nor does waiting for a processor that other programs use. Waiting for the
/// disk or the display counts. Throws where the kernel keeps no such numbers.
double mainLoopTime();

} // namespace tessaro::bench
