#pragma once

#include "Services/AccountRoutes.h"
#include "Services/MetaGraphClient.h"
#include "support/LoopbackServer.h"
#include "support/MainLoop.h"
#include "support/StoreWorld.h"

namespace tessaro::test {

/// A data store, and a server that stands in for the Graph API. The server gives the answers that
/// the test sets, whatever the token.
struct GraphWorld : StoreWorld {
    LoopbackServer server;
    std::string baseUrl = server.origin() + "/v25.0";
    AccountRoutes routes;
    GraphClientFactory makeClient = [this](SecretText token, std::optional<Account> account) {
        return std::make_shared<MetaGraphClient>(baseUrl, std::move(token), account, routes);
    };

    void answerMe(LoopbackServer::Answer answer) { server.answer("/v25.0/me", std::move(answer)); }
    void answerAccounts(LoopbackServer::Answer answer) {
        server.answer("/v25.0/me/accounts", std::move(answer));
    }
    void answerPicture(const std::string& pageId, LoopbackServer::Answer answer) {
        server.answer("/v25.0/" + pageId + "/picture", std::move(answer));
    }
};

} // namespace tessaro::test
