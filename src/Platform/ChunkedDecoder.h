#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaro {

/// Takes the chunked framing off a body (RFC 9112, section 7.1) and tells a whole body from one
/// that was cut short. Strict: every line ends in CRLF and a size is nothing but hexadecimal
/// digits.
class ChunkedDecoder {
public:
    /// Takes the next bytes off the wire and appends the data in them to `body`. False once the
    /// framing is malformed; bytes after the end are ignored.
    bool feed(std::string_view bytes, std::string& body);
    /// Whether the last chunk and the empty line behind it were seen.
    bool isComplete() const { return expected_ == Expected::nothing; }

private:
    enum class Expected { size, data, dataEnd, trailer, nothing };

    bool endLine();

    Expected expected_ = Expected::size;
    std::uint64_t dataLeft_ = 0;
    std::string line_;
    std::size_t trailerBytes_ = 0;
};

} // namespace tessaro
