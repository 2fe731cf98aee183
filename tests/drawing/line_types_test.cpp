#include "drawing/line_types.h"

#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class LineTypes : public testing::Test {
protected:
    CTestDrawing m_drawing;
};
} // namespace

TEST_F(LineTypes, FirstLookupOfDashedLoadsItButGivesNoId) {
    AcDbObjectId id;
    EXPECT_EQ(LoadLinetypeId("Dashed2", nullptr, id), 1);
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(m_drawing.Database().ltscale(), 10.0);
    EXPECT_EQ(LoadLinetypeId("Dashed2", nullptr, id), 1);
    EXPECT_FALSE(id.isNull());
    EXPECT_EQ(SymbolName(id), "Dashed2");
}

TEST_F(LineTypes, EveryLookupOfDashedSetsTheScaleThatAUserMayHaveChanged) {
    AcDbObjectId id;
    LoadLinetypeId("Dashed2", nullptr, id);
    m_drawing.Database().setLtscale(1.5);
    LoadLinetypeId("Dashed2", nullptr, id);
    EXPECT_EQ(m_drawing.Database().ltscale(), 10.0);
}

TEST_F(LineTypes, OtherLookupsLeaveTheScale) {
    m_drawing.Database().setLtscale(1.5);
    AcDbObjectId id;
    EXPECT_EQ(LoadLinetypeId("Continuous", nullptr, id), 1);
    EXPECT_FALSE(id.isNull());
    EXPECT_EQ(m_drawing.Database().ltscale(), 1.5);
    LoadLinetypeId("Dashed2", nullptr, id);
    m_drawing.Database().setLtscale(1.5);
    EXPECT_EQ(LoadLinetypeId("DASHED2", nullptr, id), 1); // found in any case, but not the name that is meant
    EXPECT_EQ(m_drawing.Database().ltscale(), 1.5);
}

TEST_F(LineTypes, AMissingLineTypeIsToldAndLeavesTheId) {
    AcDbObjectId id;
    EXPECT_EQ(LoadLinetypeId("Zigzag", nullptr, id), 0);
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(m_drawing.m_strPrinted, "未找到线型");
}

TEST_F(LineTypes, CurrentLineTypeIsLoadedAndLeavesTheScale) {
    EXPECT_EQ(SetCurrentLinetype("Dashed2", nullptr), 1);
    EXPECT_EQ(SymbolName(m_drawing.Database().celtype()), "Dashed2");
    EXPECT_EQ(m_drawing.Database().ltscale(), 1.0);
    EXPECT_EQ(SetCurrentLinetype("Continuous", nullptr), 1);
    EXPECT_EQ(SymbolName(m_drawing.Database().celtype()), "Continuous");
    EXPECT_EQ(SetCurrentLinetype("Zigzag", nullptr), 0);
    EXPECT_EQ(SymbolName(m_drawing.Database().celtype()), "Continuous");
    EXPECT_EQ(m_drawing.m_strPrinted, "未找到线型");
}

TEST_F(LineTypes, ALookupOfDashedScalesTheDrawingItIsDoneIn) {
    AcDbDatabase temporary;
    AcDbObjectId id;
    EXPECT_EQ(LoadLinetypeId("Dashed2", &temporary, id), 1);
    EXPECT_EQ(temporary.ltscale(), 10.0);
    EXPECT_EQ(m_drawing.Database().ltscale(), 1.0);
}
