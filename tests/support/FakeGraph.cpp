#include "support/FakeGraph.h"

namespace tessaro::test {

namespace {

class FakeClient final : public MetaGraphClient {
public:
    FakeClient(FakeGraph& graph, const SecretText& token)
        : MetaGraphClient("http://127.0.0.1:9/v25.0", token, std::nullopt, graph.routes),
          graph_(graph),
          token_(token.reveal()) {}

    Task<Result<PageInfo>> fetchPageInfo() override {
        co_await graph_.gate.pass();
        const auto answer = graph_.objects.find(token_);
        if (answer == graph_.objects.end())
            co_return failure("MetaGraph", 190, "Token không hợp lệ.");
        co_return answer->second;
    }
    Task<Result<std::vector<ResolvedPage>>> fetchManagedPages() override {
        co_await graph_.gate.pass();
        const auto pages = graph_.managed.find(token_);
        if (pages == graph_.managed.end())
            co_return failure("MetaGraph", 100, "Token của một Page.");
        co_return pages->second;
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
    return [this](const SecretText& token, const std::optional<Account>&) {
        asked.push_back(token.reveal());
        return std::make_shared<FakeClient>(*this, token);
    };
}

} // namespace tessaro::test
