// acedTextBox.

#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

class AcedTextBox : public testing::Test {
protected:
    AcedTextBox() { acdbHostApplicationServices()->setWorkingDatabase(&m_drawing); }
    int Box(resbuf* pGroups) {
        const CResbufChain groups(pGroups);
        return acedTextBox(groups.Get(), m_low, m_high);
    }
    CFixedMetrics m_metrics;
    AcDbDatabase m_drawing;
    ads_point m_low = {7, 7, 7}, m_high = {7, 7, 7};
};

} // namespace

TEST_F(AcedTextBox, IsTheTextUnturnedAtTheOrigin) {
    const ads_point at = {100, 200, 0};
    ASSERT_EQ(Box(acutBuildList(RTDXF0, L"TEXT", 10, at, 40, 2.5, 1, L"试样12", 50, 1.5, RTNONE)), RTNORM);
    EXPECT_EQ(m_low[0], 0.0);
    EXPECT_EQ(m_low[1], 0.0);
    EXPECT_EQ(m_high[0], 7.5); // six bytes
    EXPECT_EQ(m_high[1], 2.5);
    EXPECT_EQ(m_high[2], 0.0);
}

TEST_F(AcedTextBox, TakesWidthFactorAndStyle) {
    auto* const pStyle = new AcDbTextStyleTableRecord;
    pStyle->setFileName(L"hztxt.shx");
    AddRecord<AcDbTextStyleTable>(m_drawing.textStyleTableId(), L"QM_PMT_BTFont", pStyle);
    ASSERT_EQ(Box(acutBuildList(1, L"ab", 40, 2.0, 41, 0.5, 7, L"QM_PMT_BTFont", RTNONE)), RTNORM);
    EXPECT_EQ(m_high[0], 1.0);
    EXPECT_EQ(m_metrics.m_font.m_strFont, "hztxt.shx");
}

TEST_F(AcedTextBox, RefusesWhatShowsNothingAndAnUnknownStyle) {
    EXPECT_EQ(Box(nullptr), RTERROR);
    EXPECT_EQ(Box(acutBuildList(1, L"ab", RTNONE)), RTERROR);
    EXPECT_EQ(Box(acutBuildList(40, 2.0, RTNONE)), RTERROR);
    EXPECT_EQ(Box(acutBuildList(1, L"ab", 40, -2.0, RTNONE)), RTERROR);
    EXPECT_EQ(Box(acutBuildList(1, L"ab", 40, 2.0, 7, L"none", RTNONE)), RTERROR);
    EXPECT_EQ(m_high[0], 7.0);
}
