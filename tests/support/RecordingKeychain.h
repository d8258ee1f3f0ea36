#pragma once

#include "Services/KeychainService.h"

#include <string>
#include <vector>

namespace tessaro::test {

/// Stands in for the user's keyring where a test only asks which entries are deleted.
class RecordingKeychain final : public KeychainService {
public:
    explicit RecordingKeychain(AppLogger& logger) : KeychainService(nobody_, logger) {}

    bool remove(const std::string& key) override {
        removed.push_back(key);
        return true;
    }

    std::vector<std::string> removed; ///< The keys, in the order in which they were deleted.

private:
    SecretStore nobody_; ///< Never called.
};

} // namespace tessaro::test
