#include "platform/ado/dialect_numbers.h"

#include <gtest/gtest.h>

#include <limits>

TEST(LeadingNumber, ReadsTheNumberAtTheBeginning) {
    EXPECT_EQ(LeadingNumber("12"), 12.0);
    EXPECT_EQ(LeadingNumber("12A3"), 12.0);
    EXPECT_EQ(LeadingNumber("1-2"), 1.0);
    EXPECT_EQ(LeadingNumber("-1.5x"), -1.5);
    EXPECT_EQ(LeadingNumber("+.5"), 0.5);
    EXPECT_EQ(LeadingNumber("3."), 3.0);
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
    for (const char* pszText : {"", "ZK1", "A", "-", ".", "+-1", "e5"})
        EXPECT_EQ(LeadingNumber(pszText), 0.0) << pszText;
}

TEST(LeadingNumber, LeavesBlanksOut) {
    EXPECT_EQ(LeadingNumber(" 1 2 "), 12.0);
}

TEST(LeadingNumber, TakesAnExponentOnlyWithDigits) {
    EXPECT_EQ(LeadingNumber("1e2"), 100.0);
    EXPECT_EQ(LeadingNumber("1D2"), 100.0);
    EXPECT_EQ(LeadingNumber("2E-1"), 0.2);
    EXPECT_EQ(LeadingNumber("7E"), 7.0);
    EXPECT_EQ(LeadingNumber("7E+"), 7.0);
}

TEST(LeadingNumber, StaysFiniteForWhatNoNumberHolds) {
    EXPECT_EQ(LeadingNumber("1e999"), std::numeric_limits<double>::max());
    EXPECT_EQ(LeadingNumber("-1e999"), -std::numeric_limits<double>::max());
    EXPECT_EQ(LeadingNumber("1e-999"), 0.0);
}

TEST(IsNumericText, WantsAWholeNumber) {
    for (const char* pszText : {"0", " 5 ", "-1.5", "1e5", ".5"})
        EXPECT_TRUE(IsNumericText(pszText)) << pszText;
    for (const char* pszText : {"", " ", "A", "1A", "-", "1-2", "."})
        EXPECT_FALSE(IsNumericText(pszText)) << pszText;
}
