#include "Platform/DateTime.h"

#include <gtest/gtest.h>

using namespace tessaro;
using namespace std::chrono_literals;

TEST(DateTime, WritesBackWhatItReadsAndRefusesOtherFormsAndTimesThatDoNotExist) {
    for (const char* text :
         {"2025-03-01T09:30:05Z", "2024-02-29T00:00:00Z", "1969-12-31T23:59:59Z",
          "0001-01-01T00:00:00Z", "9999-12-31T23:59:59Z"})
        EXPECT_EQ(formatDateTime(parseDateTime(text).value() + 999ms), text);
    for (const char* text :
         {"2025-03-01T09:30:05.250Z", "2025-03-01T09:30:05", "2025-03-01T09:30:05+00:00",
          "2025-03-01t09:30:05z", "2025-3-01T09:30:05Z", " 2025-03-01T09:30:05Z",
          "+025-03-01T09:30:05Z", "2023-02-29T00:00:00Z", "2025-13-01T00:00:00Z",
          "2025-01-00T00:00:00Z", "2025-01-01T24:00:00Z", "2016-12-31T23:59:60Z", ""})
        EXPECT_FALSE(parseDateTime(text)) << text;
}
