#pragma once

#include <string>
#include <vector>

/// How the programs are started that the program is held against.
namespace tessaro::bench::peers {

using Command = std::vector<std::string>;

Command bareWindow();
/// Loads the addresses that it is given on its standard input.
Command bareView();
Command miniBrowser(const std::string& address);
/// One page in a window of its own, without tabs and buttons.
Command chromiumApp(const std::string& address);
Command chromiumTabs(const std::vector<std::string>& addresses);

} // namespace tessaro::bench::peers
