#include "data/sql_text.h"

#include <gtest/gtest.h>

TEST(SqlText, DoublesSingleQuotes) {
    EXPECT_EQ(SqlText("K'1"), CString("K''1"));
    EXPECT_EQ(SqlText("'"), CString("''"));
    EXPECT_EQ(SqlText("''"), CString("''''"));
    EXPECT_EQ(SqlText("孔\"1"), CString("孔\"1"));
    EXPECT_EQ(SqlText(""), CString(""));
}
