#pragma once

#include "support/TempFolder.h"

#include <string>

namespace tessaro::test {

/// A certificate authority made for one test with the openssl command.
class TestAuthority {
public:
    TestAuthority();

    /// The authority's own certificate, to be trusted.
    std::filesystem::path file() const { return folder_ / "authority.pem"; }

    /// A certificate for that address ("IP:…" or "DNS:…") with its private key, in PEM form.
    std::string identity(const std::string& address = "IP:127.0.0.1") const;

private:
    void request(const std::string& name, const std::string& options) const;

    TempFolder folder_;
};

} // namespace tessaro::test
