#pragma once

#include <string>

namespace tessaro {

/// See Engine::decodableMedia().
std::string decodableMedia();

} // namespace tessaro
