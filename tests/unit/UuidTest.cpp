#include "Platform/Uuid.h"

#include <gtest/gtest.h>

#include <unordered_set>

using namespace tessaro;

TEST(Uuid, ReadsEitherCaseAndWritesUpperCase) {
    const auto lower = Uuid::parse("0aF3c2d1-00ff-4b6e-9abc-def012345678");
    ASSERT_TRUE(lower);
    EXPECT_EQ(lower->text(), "0AF3C2D1-00FF-4B6E-9ABC-DEF012345678");
    EXPECT_EQ(*lower, *Uuid::parse(lower->text()));
    EXPECT_EQ(std::hash<Uuid>{}(*lower), std::hash<Uuid>{}(*Uuid::parse(lower->text())));
}

TEST(Uuid, RefusesEveryOtherText) {
    for (const char* text :
         {"", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567", "0AF3C2D1-00FF-4B6E-9ABC-DEF0123456789",
          "{AF3C2D1-00FF-4B6E-9ABC-DEF01234567}", "0AF3C2D1000FF-4B6E-9ABC-DEF012345678",
          "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567G", "0AF3C2D1-00FF-4B6E-9ABC-DEF0-2345678"})
        EXPECT_FALSE(Uuid::parse(text)) << text;
}

TEST(Uuid, IsRandomOfVersionFour) {
    std::unordered_set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        const auto uuid = Uuid::random();
        EXPECT_EQ(uuid.text()[14], '4');
        seen.insert(uuid);
    }
    EXPECT_EQ(seen.size(), 1000u);
}
