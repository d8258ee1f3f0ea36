#include "HttpGet.h"

#include "Platform/FileStore.h"
#include "support/LoopbackServer.h"
#include "support/ScopedEnvironment.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

using namespace tessaro;
using namespace tessaro::test;

namespace {

/// A certificate authority for one test, made with the openssl command.
class TestAuthority {
public:
    TestAuthority() { request("authority", ""); }

    /// The authority's certificate, which a client has to trust.
    std::filesystem::path file() const { return folder_ / "authority.pem"; }

    /// A certificate for that address ("IP:…" or "DNS:…") with its private key, in PEM form.
    std::string identity(const std::string& address = "IP:127.0.0.1") const {
        request(
            "server", "-CA authority.pem -CAkey authority.key -addext subjectAltName=" + address);
        return readFile(folder_ / "server.pem").value() + readFile(folder_ / "server.key").value();
    }

private:
    void request(const std::string& name, const std::string& options) const {
        const auto command =
            "cd " + folder_.path().string() + " && openssl req -x509 -newkey ec -nodes" +
            " -pkeyopt ec_paramgen_curve:prime256v1 -subj /CN=" + name + " -keyout " + name +
            ".key -out " + name + ".pem " + options + " 2>/dev/null";
        if (std::system(command.c_str()) != 0)
            throw std::runtime_error("failed: " + command);
    }

    TempFolder folder_;
};

class HttpClientTls : public testing::Test {
protected:
    const TestAuthority authority;
    LoopbackServer plain, secure{authority.identity()};
    HttpOptions options{.silenceLimit = std::chrono::seconds(1), .authorityFile = authority.file()};
};

class HttpClientProxy : public HttpClientTls {
protected:
    HttpClientProxy() { options.proxy = HttpOptions::Proxy{"127.0.0.1", proxy.port()}; }

    LoopbackServer proxy;
};

} // namespace

TEST_F(HttpClientTls, TrustsItsAuthorityAndNobodyElse) {
    secure.answer("/", "secure");
    EXPECT_EQ(get(secure.origin() + "/", options).value().body, "secure");
    EXPECT_FALSE(get(secure.origin() + "/")) << "the system's store does not know the authority";
    for (const auto& identity :
         {authority.identity("DNS:other.example"), TestAuthority().identity()}) {
        LoopbackServer server(identity);
        EXPECT_EQ(codeOf(get(server.origin() + "/?t=secret", options)), HttpClient::transport);
        EXPECT_EQ(server.requests().size(), 0u);
    }
}

TEST_F(HttpClientTls, SendsNothingInTheClearWhateverTheServerDoes) {
    const auto plainHost = plain.origin().substr(7);
    secure.answer("/down", {302, "", {{"Location", plain.origin()}}});
    // Without "http://" the client uses TLS, which the plain server does not speak.
    secure.answer("/aside", {302, "", {{"Location", "//" + plainHost}}});
    EXPECT_EQ(codeOf(get(secure.origin() + "/down", options)), HttpClient::badRedirect);
    EXPECT_FALSE(get(secure.origin() + "/aside", options));
    EXPECT_FALSE(get("https://" + plainHost + "/?t=secret", options));
    EXPECT_EQ(plain.requests().size(), 0u);
}

TEST_F(HttpClientProxy, CarriesPlainAndTlsRequestsAlikeWithoutCredentials) {
    // It opens no tunnel, but answers in the server's place.
    const auto identity = authority.identity();
    proxy.handle(secure.origin().substr(8), [&](auto& connection, const ReceivedRequest&) {
        connection.write("HTTP/1.1 200 Connection established\r\n\r\n");
        connection.startTls(identity);
        const auto inner = connection.readRequest();
        connection.write("HTTP/1.1 200 OK\r\n\r\n" + inner->target + " through a tunnel");
    });
    proxy.answer(plain.origin() + "/plain", "by the proxy");
    EXPECT_EQ(get(plain.origin() + "/plain?q=1", options).value().body, "by the proxy");
    EXPECT_EQ(
        get(secure.origin() + "/secure?q=2", options).value().body, "/secure?q=2 through a tunnel");
    const auto seen = proxy.requests();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0].target, plain.origin() + "/plain?q=1");
    EXPECT_EQ(seen[1].method, "CONNECT");
    EXPECT_EQ(seen[1].target, secure.origin().substr(8));
    for (const auto& request : seen)
        EXPECT_FALSE(request.headers.contains("proxy-authorization"));
}

TEST_F(HttpClientProxy, HandsOutTheProxysRequestForCredentialsAsAResponse) {
    proxy.answer("*", {407, "no!", {{"Proxy-Authenticate", "Basic realm=\"proxy\""}}});
    for (const auto& origin : {plain.origin(), secure.origin()})
        EXPECT_EQ(get(origin + "/?access_token=secret", options).value().status, 407u);
    EXPECT_EQ(plain.connectionCount() + secure.connectionCount(), 0u);
}

TEST_F(HttpClientProxy, NeverGoesDirectlyWhenItsProxyCannotBeUsed) {
    const std::int64_t closed = LoopbackServer().port();
    for (const auto& unusable : std::initializer_list<HttpOptions::Proxy>{
             {"127.0.0.1", closed},
             {"127.0.0.1", 70000},
             {"127.0.0.1", -1},
             {"no host/", 80},
             {"127.0.0.1 ", closed},
             {"\xff", 80}})
        EXPECT_FALSE(get(plain.origin(), {.proxy = unusable})) << unusable.host << unusable.port;
    EXPECT_EQ(plain.connectionCount(), 0u);
}

TEST_F(HttpClientProxy, LooksItsHostUpByTheNameThatTheNetworkKnows) {
    // RFC 6761: every name below "localhost" is this computer.
    proxy.answer("*", "by the proxy");
    options.proxy = HttpOptions::Proxy{"máy.localhost", proxy.port()};
    EXPECT_EQ(get(plain.origin(), options).value().body, "by the proxy");
}

TEST_F(HttpClientProxy, HeedsTheEnvironmentOnlyWhenAskedTo) {
    ScopedEnvironment environment;
    environment.set("http_proxy", "http://127.0.0.1:" + std::to_string(proxy.port()));
    environment.set("no_proxy", std::nullopt);
    for (const bool useSystemProxy : {false, true}) {
        std::ignore = get(plain.origin(), {.useSystemProxy = useSystemProxy});
        EXPECT_EQ(proxy.requests().size(), useSystemProxy ? 1u : 0u);
    }
}
