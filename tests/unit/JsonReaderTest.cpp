#include "Platform/JsonReader.h"

#include "support/PeakMemory.h"

#include <gtest/gtest.h>

using namespace tessaro;

namespace {

std::string nested(std::size_t levels) {
    return std::string(levels, '[') + std::string(levels, ']');
}

TEST(ParseJson, RefusesDeepNestingInBoundedMemory) {
    std::string objects;
    for (int i = 0; i < 1'000'000; ++i)
        objects += R"({"\\":)";
    for (const auto& text : {std::string(16 << 20, '['), objects, nested(100'000)}) {
        const test::PeakMemory memory;
        EXPECT_FALSE(parseJson(text));
        EXPECT_LT(memory.growth(), 1u << 20);
    }
}

TEST(ParseJson, CountsNeitherBracketsInTextsNorThoseSideBySide) {
    EXPECT_TRUE(parseJson(nested(512)));
    EXPECT_FALSE(parseJson(nested(513)));
    EXPECT_TRUE(parseJson(R"(["\\\"[)" + std::string(1000, '{') + "\"]"));
    std::string list = "[[]";
    for (int i = 0; i < 1000; ++i)
        list += ",[]";
    EXPECT_TRUE(parseJson(list + "]"));
}

} // namespace
