#pragma once

#include <string>
#include <vector>

/// The commands that start what the program is compared with.
namespace tessaro::bench::peers {

using Command = std::vector<std::string>;

Command bareWindow();
/// Loads each address that it reads from its standard input.
Command bareView();
Command miniBrowser(const std::string& address);
/// Shows one web page in a window without tabs and buttons.
Command chromiumApp(const std::string& address);
Command chromiumTabs(const std::vector<std::string>& addresses);

} // namespace tessaro::bench::peers
