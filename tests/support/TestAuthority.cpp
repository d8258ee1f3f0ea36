#include "support/TestAuthority.h"

#include <fstream>
#include <iterator>

namespace tessaro::test {

namespace {

const std::vector<std::string> newKey{
    "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes"};

std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string>
joined(std::vector<std::string> first, const std::vector<std::string>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

TestAuthority::TestAuthority() {
    run(joined(
        {"req", "-x509", "-subj", "/CN=Test authority", "-days", "2", "-keyout", "authority.key",
         "-out", "authority.pem"},
        newKey));
}

ServerIdentity TestAuthority::valid() const {
    return sign("IP:127.0.0.1", "2");
}

ServerIdentity TestAuthority::forAnotherHost() const {
    return sign("DNS:other.example", "2");
}

ServerIdentity TestAuthority::expired() const {
    return sign("IP:127.0.0.1", "-1");
}

ServerIdentity TestAuthority::selfSigned() const {
    run(joined(
        {"req", "-x509", "-subj", "/CN=Server", "-addext", "subjectAltName=IP:127.0.0.1", "-days",
         "2", "-keyout", "server.key", "-out", "server.pem"},
        newKey));
    return {contents(folder_ / "server.pem") + contents(folder_ / "server.key")};
}

ServerIdentity TestAuthority::sign(const std::string& host, const std::string& days) const {
    run(joined(
        {"req", "-subj", "/CN=Server", "-addext", "subjectAltName=" + host, "-keyout", "server.key",
         "-out", "server.csr"},
        newKey));
    run(
        {"x509", "-req", "-in", "server.csr", "-copy_extensions", "copy", "-CA", "authority.pem",
         "-CAkey", "authority.key", "-CAcreateserial", "-days", days, "-out", "server.pem"});
    return {contents(folder_ / "server.pem") + contents(folder_ / "server.key")};
}

void TestAuthority::run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "openssl");
    std::vector<char*> argv;
    for (auto& argument : arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    GErrorSlot error;
    char* complaints = nullptr;
    int status = 0;
    const bool ran = g_spawn_sync(
        folder_.path().c_str(), argv.data(), nullptr, G_SPAWN_SEARCH_PATH, nullptr, nullptr,
        nullptr, &complaints, &status, error.out());
    const GCharPtr owner(complaints);
    if (!ran || !g_spawn_check_wait_status(status, error.out()))
        g_error("openssl: %s %s", error.message().c_str(), complaints ? complaints : "");
}

} // namespace tessaro::test
