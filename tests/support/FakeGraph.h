#pragma once

#include "Services/MetaGraphClient.h"
#include "support/Gate.h"

#include <map>

namespace tessaro::test {

/// A Graph API that knows the tokens that the test gives it and refuses all others.
class FakeGraph {
public:
    using ResolvedPage = MetaGraphClient::ResolvedPage;

    /// What "/me" answers, by token.
    std::map<std::string, PageInfo> objects;
    /// What "/me/accounts" answers, by token.
    std::map<std::string, std::vector<ResolvedPage>> managed;
    /// The tokens that clients were made for, in order.
    std::vector<std::string> asked;
    /// While it is shut, no answer comes.
    Gate gate;

    static constexpr const char* refusal = "Token không hợp lệ.";

    /// Outlived by this.
    GraphClientFactory factory();
};

} // namespace tessaro::test
