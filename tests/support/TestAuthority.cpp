#include "support/TestAuthority.h"

#include "Platform/FileStore.h"

#include <cstdlib>
#include <stdexcept>

namespace tessaro::test {

TestAuthority::TestAuthority() {
    request("authority", "");
}

std::string TestAuthority::identity(const std::string& address) const {
    request("server", "-CA authority.pem -CAkey authority.key -addext subjectAltName=" + address);
    return readFile(folder_ / "server.pem").value() + readFile(folder_ / "server.key").value();
}

void TestAuthority::request(const std::string& name, const std::string& options) const {
    const auto command =
        "cd " + folder_.path().string() +
        " && openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -subj /CN=" +
        name + " -keyout " + name + ".key -out " + name + ".pem " + options + " 2>/dev/null";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
}

} // namespace tessaro::test
