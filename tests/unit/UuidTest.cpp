#include "Platform/Uuid.h"

#include <gtest/gtest.h>

using namespace tessaro;

TEST(Uuid, ReadsEitherCaseWritesUpperCaseAndRefusesEveryOtherText) {
    const auto lower = Uuid::parse("0aF3c2d1-00ff-4b6e-9abc-def012345678").value();
    EXPECT_EQ(lower.text(), "0AF3C2D1-00FF-4B6E-9ABC-DEF012345678");
    EXPECT_EQ(lower, Uuid::parse(lower.text()));
    EXPECT_NE(Uuid::random(), Uuid::random());
    for (const char* text :
         {"", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567", "0AF3C2D1-00FF-4B6E-9ABC-DEF0123456789",
          "0AF3C2D1000FF-4B6E-9ABC-DEF012345678", "0AF3C2D1-00FF-4B6E-9ABC-DEF01234567G",
          "0AF3C2D1-00FF-4B6E-9ABC-DEF0-2345678"})
        EXPECT_FALSE(Uuid::parse(text)) << text;
}
