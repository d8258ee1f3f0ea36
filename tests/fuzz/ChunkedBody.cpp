#include "FuzzTarget.h"

#include "Platform/ChunkedDecoder.h"

using namespace tessaro;

/// It makes no difference in which pieces a body comes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = test::asText(data, size);
    ChunkedDecoder whole, pieces;
    std::string body, pieceBody;
    bool accepted = whole.feed(bytes, body), piecesAccepted = true;
    for (std::size_t i = 0; i < size && piecesAccepted; ++i)
        piecesAccepted = pieces.feed(bytes.substr(i, 1), pieceBody);
    test::require(accepted == piecesAccepted);
    test::require(!accepted || (body == pieceBody && whole.isComplete() == pieces.isComplete()));
    return 0;
}
