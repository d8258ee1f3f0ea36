#include "ViewModels/TitleCount.h"

#include <gtest/gtest.h>

using tessaro::countAtHead;

TEST(TitleCount, IsANumberInBracketsAtTheHeadAndNothingElse) {
    EXPECT_EQ(countAtHead("(3) Hộp thư"), "3");
    EXPECT_EQ(countAtHead("\u00A0(12)"), "12");
    EXPECT_EQ(countAtHead("(20+) Hộp thư"), "20+");
    EXPECT_EQ(countAtHead("(3) " + std::string(100'000, ')')), "3");
    for (const char* title :
         {"", "(", "()", "(+)", "(0) Hộp thư", "(03)", "(-1) Nợ", "(3", "3) Hộp thư", "(3 4)",
          "(ba) Hộp thư", "Hộp thư (3)", "(1234567) Mã đơn", "(84)912345678", "(3+1) Khuyến mãi",
          "\xff(3)"})
        EXPECT_EQ(countAtHead(title), "") << title;
}
