#pragma once

#include <string>

/// What the system says about this computer.
namespace tessaro::machine {

/// The machine identifier file of the system (machine-id(5)).
inline constexpr const char* identifierFile = "/etc/machine-id";

/// The name that the user gave this computer (hostnamed's pretty name, machine-info(5)); empty when
/// there is none.
std::string prettyName();

/// The network host name.
std::string hostName();

} // namespace tessaro::machine
