#include "host/files/typeface.h"

#include <gtest/gtest.h>

namespace {

/// Typeface and traits of a style's font.
struct CFont {
    std::wstring m_strTypeface;
    Adesk::Boolean m_bBold = 0, m_bItalic = 0;
    int m_nCharset = 0, m_nPitchAndFamily = 0;
    explicit CFont(const AcDbTextStyleTableRecord& style) {
        style.font(m_strTypeface, m_bBold, m_bItalic, m_nCharset, m_nPitchAndFamily);
    }
};

} // namespace

TEST(Typeface, IsANameAndANumberWithItsTraits) {
    AcDbTextStyleTableRecord style;
    style.setFont(L"SimSun", true, false, 134, 50);
    EXPECT_EQ(TypefaceItems(style),
              (std::vector<CXDataItem>{{1000, L"SimSun"}, {1071, Adesk::Int32{0x2008632}}}));
    style.setFont(L"SimSun", false, true, 0, 0);
    EXPECT_EQ(TypefaceItems(style)[1].m_value, decltype(CXDataItem::m_value)(Adesk::Int32{0x1000000}));
}

TEST(Typeface, OfAStyleWithShapeFontsIsNone) {
    AcDbTextStyleTableRecord style;
    style.setFileName(L"txt.shx");
    EXPECT_TRUE(TypefaceItems(style).empty());
}

TEST(Typeface, ComesBackToAStyle) {
    AcDbTextStyleTableRecord style, other;
    style.setFont(L"仿宋_GB2312", true, true, 134, 49);
    ASSERT_TRUE(GiveTypeface(other, TypefaceItems(style)));
    const CFont font(other);
    EXPECT_EQ(font.m_strTypeface, L"仿宋_GB2312");
    EXPECT_TRUE(font.m_bBold);
    EXPECT_TRUE(font.m_bItalic);
    EXPECT_EQ(font.m_nCharset, 134);
    EXPECT_EQ(font.m_nPitchAndFamily, 49);
}

TEST(Typeface, ValuesOfAnotherShapeLeaveTheStyleAsItWas) {
    AcDbTextStyleTableRecord style;
    style.setFileName(L"txt.shx");
    const CXDataItem name{1000, L"SimSun"}, noName{1000, L""}, traits{1071, Adesk::Int32{0}};
    for (const std::vector<CXDataItem>& items :
         {std::vector<CXDataItem>{}, {name}, {traits, name}, {name, name}, {noName, traits}}) {
        EXPECT_FALSE(GiveTypeface(style, items));
        EXPECT_EQ(style.FileName(), L"txt.shx");
    }
}
