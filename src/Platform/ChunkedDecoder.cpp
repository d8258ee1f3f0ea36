#include "Platform/ChunkedDecoder.h"

#include <algorithm>
#include <charconv>

namespace tessaro {

namespace {
/// The longest size line and the longest trailer section, in bytes.
constexpr std::size_t framingLimit = 16 * 1024;
} // namespace

bool ChunkedDecoder::feed(std::string_view bytes, std::string& body) {
    while (!bytes.empty() && !isComplete()) {
        if (expected_ == Expected::data) {
            const auto length =
                static_cast<std::size_t>(std::min<std::uint64_t>(dataLeft_, bytes.size()));
            body.append(bytes.substr(0, length));
            bytes.remove_prefix(length);
            dataLeft_ -= length;
            if (dataLeft_ == 0)
                expected_ = Expected::dataEnd;
            continue;
        }
        const char next = bytes.front();
        bytes.remove_prefix(1);
        line_ += next;
        if (line_.size() > framingLimit)
            return false;
        if (next == '\n') {
            if (!line_.ends_with("\r\n") || !endLine())
                return false;
            line_.clear();
        }
    }
    return true;
}

bool ChunkedDecoder::endLine() {
    const std::string_view line(line_.data(), line_.size() - 2);
    switch (expected_) {
    case Expected::size: {
        const auto [end, error] =
            std::from_chars(line.data(), line.data() + line.size(), dataLeft_, 16);
        const auto rest = line.substr(static_cast<std::size_t>(end - line.data()));
        expected_ = dataLeft_ > 0 ? Expected::data : Expected::trailer;
        // What may follow is an extension, with blanks before it.
        return error == std::errc() && (rest.empty() || rest.find_first_of("; \t") == 0);
    }
    case Expected::dataEnd:
        expected_ = Expected::size;
        return line.empty();
    default:
        if (line.empty())
            expected_ = Expected::nothing;
        trailerBytes_ += line_.size();
        return trailerBytes_ <= framingLimit;
    }
}

} // namespace tessaro
