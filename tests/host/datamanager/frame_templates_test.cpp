#include "host/datamanager/frame_templates.h"

#include "host/files/drawing_format.h"
#include "platform/acad/db_attribute.h"
#include "platform/windows/code_page.h"

#include <gtest/gtest.h>

#include <map>

namespace {

/// The contents of a template.
class CTemplate {
public:
    explicit CTemplate(const std::string& strBytes) {
        const CReadDrawing read = ReadDrawing(strBytes);
        EXPECT_EQ(read.m_format, CDrawingFormat::Dwg);
        for (const AcDbObjectId id :
             CDbOpen<AcDbBlockTableRecord>(read.m_pDatabase->ModelSpaceId())->EntityIds())
            Note(*CDbOpen<AcDbEntity>(id).Get());
    }

    AcDbExtents m_extents;
    std::map<std::string, int> m_mapTexts;  ///< of placeholders and captions, with their counts
    std::map<std::string, int> m_mapFields; ///< tags
    AcGePoint3d m_ptMethod;

private:
    void Note(const AcDbEntity& entity) {
        const auto* const pText = AcDbText::cast(&entity);
        if (const auto* const pField = AcDbAttributeDefinition::cast(&entity))
            ++m_mapFields[GbkFromWide(pField->tag())];
        else if (pText)
            ++m_mapTexts[GbkFromWide(pText->textString())];
        else
            Extend(entity);
        if (pText && std::wstring(pText->textString()) == L"[SYFF]") m_ptMethod = pText->position();
    }
    void Extend(const AcDbEntity& entity) {
        AcDbExtents extents;
        ASSERT_EQ(entity.getGeomExtents(extents), Acad::eOk);
        m_extents.addExt(extents);
    }
};

using CCounts = std::map<std::string, int>;

} // namespace

TEST(FrameTemplates, AreSheetsOfTheirSize) {
    const CTemplate portrait(PortraitFrame()), landscape(LandscapeFrame());
    EXPECT_EQ(portrait.m_extents.minPoint(), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(portrait.m_extents.maxPoint(), AcGePoint3d(210, 297, 0));
    EXPECT_EQ(landscape.m_extents.minPoint(), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(landscape.m_extents.maxPoint(), AcGePoint3d(420, 297, 0));
}

TEST(FrameTemplates, HaveEveryPlaceholderOnce) {
    const CTemplate portrait(PortraitFrame());
    for (const char* pMark :
         {"[DIST]", "[EP]", "[SP]", "[SP1]", "[WCDW]", "[SYZ]", "[JCZ]", "[RQ]", "[SYFF]", "[TH]", "[SH]"})
        EXPECT_EQ(portrait.m_mapTexts.count(pMark) ? portrait.m_mapTexts.at(pMark) : 0, 1) << pMark;
    EXPECT_EQ(portrait.m_mapFields, (CCounts{{"[GCBH]", 1}, {"[GCMC]", 1}, {"[ZKBH]", 1}}));
    const CTemplate landscape(LandscapeFrame());
    for (const char* pMark : {"[DIST]", "[EP]", "[SP]", "[SP1]", "[SYFF]", "[TH]", "[WJBH]", "[DQRQ]"})
        EXPECT_EQ(landscape.m_mapTexts.count(pMark) ? landscape.m_mapTexts.at(pMark) : 0, 1) << pMark;
    EXPECT_EQ(landscape.m_mapFields, portrait.m_mapFields);
}

TEST(FrameTemplates, PutTheMethodIntoTheRowOfTheSamplesNumber) {
    EXPECT_EQ(CTemplate(PortraitFrame()).m_ptMethod.y, 251.0);
}

TEST(FrameTemplates, PutTheMethodIntoTheMiddleOfItsRow) {
    EXPECT_EQ(CTemplate(LandscapeFrame()).m_ptMethod, AcGePoint3d(31.0, 280.0 - 2.5 / 2.0, 0.0));
}

TEST(FrameTemplates, HaveAStripThatFitsTheFootOfTheSheet) {
    const CTemplate strip(TitleStrip());
    // As the sheet has it: 24 to the left, 5 above its lower edge, a thousand times as large.
    EXPECT_NEAR(strip.m_extents.minPoint().x * 1000 - 24, 4.0, 1e-9);
    EXPECT_NEAR(strip.m_extents.maxPoint().x * 1000 - 24, 416.0, 1e-9);
    EXPECT_NEAR(strip.m_extents.minPoint().y * 1000 + 5, 9.0, 1e-9);
    EXPECT_NEAR(strip.m_extents.maxPoint().y * 1000 + 5, 28.0, 1e-9);
    EXPECT_EQ(strip.m_mapTexts.size(), 5U);
}
