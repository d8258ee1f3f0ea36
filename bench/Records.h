#pragma once

#include "Models/Account.h"
#include "Models/PageConfig.h"

#include <string>
#include <vector>

namespace tessaro::bench {

std::vector<Account> makeAccounts(int count);
/// Pages that are spread evenly over the accounts. There must be at least one account.
std::vector<PageConfig> makePages(const std::vector<Account>& accounts, int count);

/// Writes the records where the program looks for them, and settings that send all its requests to
/// that server. Throws when a file cannot be written.
void writeRecords(
    const std::vector<Account>& accounts, const std::vector<PageConfig>& pages,
    const std::string& origin);

} // namespace tessaro::bench
