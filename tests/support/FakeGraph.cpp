#include "support/FakeGraph.h"

namespace tessaro::test {

namespace {

template <typename Answer>
Task<Result<Answer>>
answerAfter(FakeGraph& graph, const std::map<std::string, Answer>& answers, std::string token) {
    co_await graph.gate.pass();
    const auto answer = answers.find(token);
    if (answer == answers.end())
        co_return failure("MetaGraph", 190, FakeGraph::refusal);
    co_return answer->second;
}

class FakeClient final : public MetaGraphClient {
public:
    FakeClient(FakeGraph& graph, SecretText token)
        : MetaGraphClient("http://127.0.0.1:9/v25.0", token, std::nullopt),
          graph_(graph),
          token_(token.reveal()) {}

    Task<Result<PageInfo>> fetchPageInfo() override {
        return answerAfter(graph_, graph_.objects, token_);
    }
    Task<Result<std::vector<ResolvedPage>>> fetchManagedPages() override {
        return answerAfter(graph_, graph_.managed, token_);
    }
    Task<Result<std::string>> fetchCustomerAvatarData(PageId) override {
        co_return failure("MetaGraph", 404, "Không có ảnh.");
    }

private:
    FakeGraph& graph_;
    const std::string token_;
};

} // namespace

GraphClientFactory FakeGraph::factory() {
    return [this](SecretText token, std::optional<Account>) {
        asked.push_back(token.reveal());
        return std::make_shared<FakeClient>(*this, std::move(token));
    };
}

} // namespace tessaro::test
