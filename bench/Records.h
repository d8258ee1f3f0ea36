#pragma once

#include "Models/Account.h"
#include "Models/PageConfig.h"

#include <string>
#include <vector>

namespace tessaro::bench {

std::vector<Account> makeAccounts(int count);
/// Spread evenly over the accounts, of which there must be one at least.
std::vector<PageConfig> makePages(const std::vector<Account>& accounts, int count);

/// Writes the records where the program looks for them, and settings by which it asks nobody but
/// that server. Throws when they cannot be written.
void writeRecords(
    const std::vector<Account>& accounts, const std::vector<PageConfig>& pages,
    const std::string& origin);

} // namespace tessaro::bench
