#include "platform/acad/text_box.h"

#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

CTextPrimitive Sample() {
    CTextPrimitive text;
    text.m_vecNormal = AcGeVector3d::kZAxis;
    text.m_vecDirection = {2.0, 0.0, 0.0}; // its length doesn't count
    text.m_strText = "应力kPa";
    text.m_dHeight = 2.0;
    return text;
}

} // namespace

TEST(TextBox, IsTheRectangleOfTheShownCharacters) {
    const CFixedMetrics metrics;
    CTextPrimitive text = Sample();
    const auto all = TextBox(text);
    ASSERT_TRUE(all);
    EXPECT_EQ((*all)[2], AcGePoint3d(7.0, 2.0, 0.0));
    text.m_nLength = 1; // one character, not one byte
    EXPECT_EQ((*TextBox(text))[2], AcGePoint3d(2.0, 2.0, 0.0));
    text.m_nLength = 99;
    EXPECT_EQ((*TextBox(text))[2], AcGePoint3d(7.0, 2.0, 0.0));
    text.m_nLength = 0;
    EXPECT_FALSE(TextBox(text));
}

TEST(TextBox, CountsTheWidthFactorButNeitherTrackingNorSlant) {
    const CFixedMetrics metrics;
    CTextPrimitive text = Sample();
    text.m_dTracking = 80.0;
    text.m_dOblique = 0.5;
    EXPECT_EQ((*TextBox(text))[1], AcGePoint3d(7.0, 0.0, 0.0));
    text.m_dXScale = 0.5;
    EXPECT_EQ((*TextBox(text))[1], AcGePoint3d(3.5, 0.0, 0.0));
}

TEST(TextBox, IsNoneWithoutMetrics) {
    EXPECT_FALSE(TextBox(Sample()));
}
