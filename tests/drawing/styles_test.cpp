#include "drawing/styles.h"

#include "analysis/numbers.h"
#include "tests/support/drawing.h"
#include "tests/support/project.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {
class Styles : public testing::Test {
protected:
    CTestProject m_project;
    CTestDrawing m_drawing;

    void Settings(const std::string& strGbk) { std::ofstream(m_project.Root() + "/Settings.ini") << strGbk; }
    AcDbObjectId Make() {
        AcDbObjectId id;
        EXPECT_EQ(CreateTextStyleFromIni("QM_PMT_BTFont", id, nullptr), 1);
        return id;
    }
    struct CFont {
        std::wstring m_strName;
        Adesk::Boolean m_bBold, m_bItalic;
        int m_nCharset, m_nPitch;
    };
    static CFont FontOf(const CDbOpen<AcDbTextStyleTableRecord>& pRecord) {
        CFont font{};
        pRecord->font(font.m_strName, font.m_bBold, font.m_bItalic, font.m_nCharset, font.m_nPitch);
        return font;
    }
};
} // namespace

TEST_F(Styles, ChartStyleIsSetUpInFull) {
    AcGiTextStyle style;
    style.setObliquingAngle(1.0);
    SetupChartTextStyle(style);
    EXPECT_EQ(style.obliquingAngle(), 0.0);
    EXPECT_STREQ(style.fileName(), L"仿宋_GB2312");
    EXPECT_EQ(style.textSize(), 2.5);
    EXPECT_EQ(style.xScale(), 1.0);
    EXPECT_EQ(style.trackingPercent(), 80.0);
}

TEST_F(Styles, TextStyleOfAnEmptyIniHasTheDefaults) {
    const AcDbObjectId id = Make();
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(id);
    ASSERT_TRUE(pRecord);
    const CFont font = FontOf(pRecord);
    EXPECT_EQ(font.m_strName, L"仿宋_GB2312");
    EXPECT_EQ(font.m_bBold, 0);
    EXPECT_EQ(font.m_nCharset, 134);
    EXPECT_EQ(font.m_nPitch, 4);
    EXPECT_EQ(pRecord->textSize(), 2.5);
    EXPECT_EQ(pRecord->xScale(), static_cast<double>(0.7F)); // values pass through single precision
    EXPECT_EQ(pRecord->obliquingAngle(), 0.0);
    EXPECT_EQ(m_drawing.Database().textstyle(), id);
}

TEST_F(Styles, TextStyleTakesTheShapeFontsWhenToldSo) {
    Settings("[QM_PMT_BTFont]\nFont_IsSHX=1\n");
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(Make());
    EXPECT_EQ(pRecord->FileName(), L"ComFont.shx");
    EXPECT_EQ(pRecord->BigFontFileName(), L"Hztxt12a.shx");
}

TEST_F(Styles, TextStyleHeightIsCutByItsBuffer) {
    Settings("[QM_PMT_BTFont]\nFont_Height=3.0000001234\nFont_Oblique=15\n");
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(Make());
    EXPECT_EQ(pRecord->textSize(), static_cast<double>(3.0000001F)); // nine characters
    EXPECT_EQ(pRecord->obliquingAngle(), 15.0 * g_dPi / 180.0);
}

TEST_F(Styles, AnExistingTextStyleIsBroughtUpToDate) {
    const AcDbObjectId idFirst = Make();
    Settings("[QM_PMT_BTFont]\nFont_Height=2.3\nFont_FontName=宋体\n");
    const AcDbObjectId idSecond = Make();
    EXPECT_EQ(idFirst, idSecond);
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(idSecond);
    const CFont font = FontOf(pRecord);
    EXPECT_EQ(font.m_strName, L"宋体");
    EXPECT_EQ(font.m_nPitch, 1);
    EXPECT_EQ(pRecord->textSize(), static_cast<double>(2.3F));
}

TEST_F(Styles, HeadingStyleLooksLikeTheChartsOwn) {
    AcGiTextStyle style;
    SetupHeadingTextStyle(style);
    EXPECT_STREQ(style.fileName(), L"仿宋_GB2312");
    EXPECT_EQ(style.textSize(), 2.5);
    EXPECT_EQ(style.trackingPercent(), 80.0);
}

TEST_F(Styles, ShapeFontStyleNeedsBothFiles) {
    AcDbObjectId id;
    EXPECT_EQ(CreateShxTextStyle("SHX", "acad.lin", "nowhere.shx", nullptr, id), 0);
    EXPECT_EQ(m_project.Boxes(), std::vector<std::string>{"未找到形文件nowhere.shx"});
    EXPECT_TRUE(id.isNull());
    // Whatever the host finds will do as a file.
    EXPECT_EQ(CreateShxTextStyle("SHX", "acad.lin", "acad.lin", nullptr, id), 1);
    EXPECT_EQ(m_drawing.Database().textstyle(), id);
    {
        const CDbOpen<AcDbTextStyleTableRecord> pRecord(id);
        EXPECT_EQ(pRecord->FileName(), L"acad.lin");
    }
    AcDbObjectId idAgain;
    EXPECT_EQ(CreateShxTextStyle("shx", "acad.lin", "acad.lin", nullptr, idAgain), 1);
    EXPECT_EQ(idAgain, id);
}

TEST_F(Styles, AStyleWithoutANameIsNotMade) {
    const AcDbObjectId idCurrent = m_drawing.Database().textstyle();
    const auto count = [this] { return LivingRecords(m_drawing.Database().textStyleTableId()).size(); };
    const std::size_t nBefore = count();
    AcDbObjectId id;
    CreateTextStyleFromIni("", id, nullptr); // what was made of it must not leak either
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(CreateShxTextStyle("", "acad.lin", "acad.lin", nullptr, id), 1);
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(count(), nBefore);
    EXPECT_EQ(m_drawing.Database().textstyle(), idCurrent);
}

TEST_F(Styles, ASectionMayNameItsOwnShapeFonts) {
    Settings("[QM_PMT_BTFont]\nFont_IsSHX=1\nFont_FileName=a.shx\nFont_BigFileName=b.shx\n");
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(Make());
    EXPECT_EQ(pRecord->FileName(), L"a.shx");
    EXPECT_EQ(pRecord->BigFontFileName(), L"b.shx");
}

TEST_F(Styles, TheSheetsTextStyleIsMadeOfAWorldStyleOnce) {
    AcGiTextStyle style;
    SetupChartTextStyle(style);
    style.setObliquingAngle(0.25);
    style.setBigFontFileName(L"big.shx");
    AcDbObjectId id, idAgain;
    EXPECT_EQ(AddBannerTextStyle(style, id), 1);
    style.setTextSize(9.0);
    EXPECT_EQ(AddBannerTextStyle(style, idAgain), 1);
    EXPECT_EQ(idAgain, id);
    EXPECT_EQ(SymbolName(id), "QM_PMT_BTFont");
    const CDbOpen<AcDbTextStyleTableRecord> pRecord(id);
    EXPECT_EQ(pRecord->obliquingAngle(), 0.25);
    EXPECT_EQ(pRecord->FileName(), L"仿宋_GB2312");
    EXPECT_EQ(pRecord->BigFontFileName(), L"big.shx");
    EXPECT_EQ(pRecord->textSize(), 2.5);
    EXPECT_EQ(pRecord->xScale(), 1.0);
}

TEST_F(Styles, TheSheetsTextStyleNeedsADrawing) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    AcDbObjectId id;
    EXPECT_EQ(AddBannerTextStyle(AcGiTextStyle(), id), 0);
}

TEST_F(Styles, AnImportedStyleIsMadeInTheWorkingDrawingAndCopiedIntoTheOther) {
    AcDbDatabase other;
    EXPECT_EQ(ImportTextStyle("标注", "宋体", 3.5, 0.8, 0.25, &other), 1);
    const auto styleIn = [](AcDbDatabase& database) {
        AcDbObjectId id;
        CDbOpen<AcDbTextStyleTable>(database.textStyleTableId())->getAt(L"标注", id);
        return id;
    };
    for (AcDbDatabase* pDatabase : {&m_drawing.Database(), &other}) {
        const CDbOpen<AcDbTextStyleTableRecord> pRecord(styleIn(*pDatabase));
        ASSERT_TRUE(pRecord);
        const CFont font = FontOf(pRecord);
        EXPECT_EQ(font.m_strName, L"宋体");
        EXPECT_EQ(font.m_nCharset, 134);
        EXPECT_EQ(font.m_nPitch, 4);
        EXPECT_EQ(pRecord->textSize(), 3.5);
        EXPECT_EQ(pRecord->xScale(), 0.8);
        EXPECT_EQ(pRecord->obliquingAngle(), 0.25);
    }
    EXPECT_EQ(other.textstyle(), styleIn(other));
    EXPECT_FALSE(m_drawing.Database().textstyle() == styleIn(m_drawing.Database()));
}

TEST_F(Styles, AnImportedStyleReplacesTheOneOfItsNameAndIsCurrentWhereItWasAskedFor) {
    AcDbDatabase other;
    ImportTextStyle("标注", "宋体", 3.5, 0.8, 0.0, &other);
    EXPECT_EQ(ImportTextStyle("标注", "宋体", 5.0, 0.8, 0.0, &other), 1);
    EXPECT_EQ(CDbOpen<AcDbTextStyleTableRecord>(other.textstyle())->textSize(), 5.0);
    EXPECT_EQ(ImportTextStyle("标注", "宋体", 6.0, 0.8, 0.0, nullptr), 1);
    EXPECT_EQ(SymbolName(m_drawing.Database().textstyle()), "标注");
    EXPECT_EQ(CDbOpen<AcDbTextStyleTableRecord>(m_drawing.Database().textstyle())->textSize(), 6.0);
    EXPECT_EQ(CDbOpen<AcDbTextStyleTableRecord>(other.textstyle())->textSize(), 5.0);
}

TEST_F(Styles, AStyleIsNotImportedWithoutADrawing) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    AcDbDatabase other;
    EXPECT_EQ(ImportTextStyle("标注", "宋体", 3.5, 0.8, 0.0, &other), 0);
}
