#include "Services/VersionComparison.h"

#include <gtest/gtest.h>

using tessaro::isNewerVersion;

TEST(VersionComparison, ComparesNumberByNumber) {
    for (const auto& [latest, current, newer] :
         std::initializer_list<std::tuple<const char*, const char*, bool>>{
             {"1.2.0", "1.2.0", false},
             {"1.2.1", "1.2.0", true},
             {"1.3", "1.2.0", true},
             {"1.2.0.1", "1.2.0", true},
             {"1.2", "1.2.0", false},
             {"1.10.0", "1.9.9", true},
             // A piece that is no number is left out and the rest moves up.
             {"v1.3.0", "1.2.0", true},
             {"beta", "1.2.0", false},
             {"", "1.2.0", false},
             {"1..2...1", "1.2.0", true},
             // Signs, and the end of 64 bits.
             {"+1.+3", "1.2.0", true},
             {"1.2", "1.2.-1", true},
             {"9223372036854775808", "1.2.0", false},
         })
        EXPECT_EQ(isNewerVersion(latest, current), newer) << latest << " after " << current;
}
