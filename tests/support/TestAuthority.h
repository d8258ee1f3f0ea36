#pragma once

#include "support/LoopbackServer.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tessaro::test {

/// A certificate authority made for one test with the openssl command, and what it signs.
class TestAuthority {
public:
    TestAuthority();

    /// The authority's own certificate, to be trusted.
    std::filesystem::path file() const { return folder_ / "authority.pem"; }

    ServerIdentity valid() const;          ///< For 127.0.0.1, as all but the next.
    ServerIdentity forAnotherHost() const; ///< For other.example.
    ServerIdentity expired() const;
    ServerIdentity selfSigned() const; ///< Not by this authority.

private:
    ServerIdentity sign(const std::string& host, const std::string& days) const;
    void run(std::vector<std::string> arguments) const;

    TempFolder folder_;
};

} // namespace tessaro::test
