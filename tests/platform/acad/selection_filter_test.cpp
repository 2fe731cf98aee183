#include "platform/acad/selection_filter.h"

#include "platform/acad/db_line.h"
#include "platform/acad/host_application.h"
#include "platform/acad/result_buffer.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

class SelectionFilter : public testing::Test {
protected:
    SelectionFilter() {
        acdbHostApplicationServices()->setWorkingDatabase(&m_drawing);
        m_line.setColorIndex(3);
        m_line.setLayer(
            AddRecord<AcDbLayerTable>(m_drawing.layerTableId(), L"图层-1", new AcDbLayerTableRecord));
    }
    bool Passes(resbuf* pFilter) const {
        const CResbufChain filter(pFilter);
        EXPECT_TRUE(IsSelectionFilter(filter.Get()));
        return PassesFilter(m_line, filter.Get());
    }
    AcDbDatabase m_drawing;
    AcDbLine m_line{{0, 0, 0}, {1, 0, 0}};
};

} // namespace

TEST_F(SelectionFilter, NoFilterTakesAll) {
    EXPECT_TRUE(Passes(nullptr));
}

TEST_F(SelectionFilter, LooksAtDxfNameLayerLinetypeAndColour) {
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"LINE", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"line", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"TEXT", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(8, L"图层-1", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(8, L"0", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(6, L"BYLAYER", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(62, 3, RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(62, 4, RTNONE)));
}

TEST_F(SelectionFilter, AllItemsAreToHold) {
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"LINE", 62, 3, RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"LINE", 62, 4, RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"TEXT", 62, 3, RTNONE)));
}

TEST_F(SelectionFilter, LooksForExtendedDataOfAnApplication) {
    EXPECT_FALSE(Passes(acutBuildList(1001, L"PMTCLASSNAME", RTNONE)));
    acdbRegApp(L"PMTCLASSNAME");
    const CResbufChain data(acutBuildList(1001, L"PMTCLASSNAME", 1000, L"x", RTNONE));
    ASSERT_EQ(m_line.setXData(data.Get()), Acad::eOk);
    EXPECT_TRUE(Passes(acutBuildList(1001, L"PMTCLASSNAME", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(1001, L"PMTCLASS", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(1001, L"PMT*", RTNONE)));
}

TEST_F(SelectionFilter, NamesTakeWildcardsAndAlternatives) {
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"*", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"L*E", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"*N?", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"*N??", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"?LINE", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(RTDXF0, L"TEXT,LINE", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"TEXT,ARC", RTNONE)));
    EXPECT_FALSE(Passes(acutBuildList(RTDXF0, L"", RTNONE)));
    EXPECT_TRUE(Passes(acutBuildList(8, L"*层*-?", RTNONE)));
}

TEST_F(SelectionFilter, OtherGroupsMakeNoFilter) {
    const CResbufChain filter(acutBuildList(RTDXF0, L"LINE", 40, 2.5, RTNONE));
    EXPECT_FALSE(IsSelectionFilter(filter.Get()));
}
