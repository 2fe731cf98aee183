#include "host/plot/pdf_page_box.h"

#include <gtest/gtest.h>

TEST(WholePointsOf, RoundsUpButNotForARoundingError) {
    EXPECT_EQ(WholePointsOf({210.0, 297.0}), QSize(596, 842));
    EXPECT_EQ(WholePointsOf({25.4, 254.0 + 1e-9}), QSize(72, 720));
}

TEST(ExactPageBoxes, WritesEachPagesSizeInPlace) {
    QByteArray pdf = "x /MediaBox [0 0 596.000000 842.000000] y /MediaBox [0 0 72.0000000 72.0000000] z";
    const qsizetype nSize = pdf.size();
    ASSERT_TRUE(ExactPageBoxes(&pdf, {{210.0, 297.0}, {25.4, 25.4}}));
    EXPECT_EQ(pdf, "x /MediaBox [0 0 595.2756 841.8898    ] y /MediaBox [0 0 72.0000 72.0000      ] z");
    EXPECT_EQ(pdf.size(), nSize);
}

TEST(ExactPageBoxes, RefusesOtherPagesAndLeavesThem) {
    const QByteArray before = "x /MediaBox [0 0 595.000000 842.000000] y";
    QByteArray pdf = before;
    EXPECT_FALSE(ExactPageBoxes(&pdf, {{210.0, 297.0}}));
    EXPECT_EQ(pdf, before);
    EXPECT_FALSE(ExactPageBoxes(&pdf, {{209.9, 297.0}, {210.0, 297.0}}));
    EXPECT_EQ(pdf, before);
}
