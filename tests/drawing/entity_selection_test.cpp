#include "drawing/entity_selection.h"

#include "drawing/model_space.h"
#include "drawing/xdata.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_text.h"
#include "platform/acad/display_recorder.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
using Ids = std::vector<AcDbObjectId>;

class EntitySelection : public testing::Test {
protected:
    CTestDrawing m_drawing;
    AcDbObjectIdArray m_ids;

    std::vector<AcDbObjectId> Found() const { return {m_ids.begin(), m_ids.end()}; }
    static AcDbObjectId AddText() {
        AcDbObjectId id;
        AddToModelSpace(new AcDbText, id);
        return id;
    }
    static AcDbObjectId AddLine(double y) {
        AcDbObjectId id;
        AddToModelSpace(new AcDbLine({0.0, y, 0.0}, {10.0, y, 0.0}), id);
        return id;
    }
};

} // namespace

TEST_F(EntitySelection, FindsWhatHasDataOfAnApplication) {
    AddText();
    const AcDbObjectId idFirst = AddText(), idSecond = AddText();
    SetXDataText(idFirst, "TKCLASS", "图框");
    SetXDataDouble(idSecond, "TKCLASS", 1.0);
    SetXDataText(idSecond, "NAME", "x");
    EXPECT_EQ(ObjectIdsByXDataApp("TKCLASS", m_ids), 1);
    EXPECT_EQ(Found(), (Ids{idFirst, idSecond}));
}

TEST_F(EntitySelection, LeavesTheListAsItWasWhenThereIsNone) {
    const AcDbObjectId idText = AddText();
    m_ids.append(idText);
    EXPECT_EQ(ObjectIdsByXDataApp("TKCLASS", m_ids), 0);
    EXPECT_EQ(ObjectIdsByClassName("CFrame", m_ids), 0);
    EXPECT_EQ(ObjectIdsByType("LINE", m_ids), 0);
    EXPECT_EQ(Found(), Ids{idText});
}

TEST_F(EntitySelection, FindsNothingWithoutADrawing) {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(ObjectIdsByXDataApp("TKCLASS", m_ids), 0);
}

TEST_F(EntitySelection, FindsTheEntitiesThatSayTheyAreOfAClass) {
    const AcDbObjectId idFrame = AddText(), idOther = AddText();
    SetXDataText(idFrame, "PMTCLASSNAME", "CFrame");
    SetXDataText(idOther, "PMTCLASSNAME", "COther");
    EXPECT_EQ(ObjectIdsByClassName("CFrame", m_ids), 1);
    EXPECT_EQ(Found(), Ids{idFrame});
}

TEST_F(EntitySelection, FindsEntitiesByTheirDxfName) {
    AddText();
    const AcDbObjectId idLine = AddLine(0.0);
    EXPECT_EQ(ObjectIdsByType("LINE", m_ids), 1);
    EXPECT_EQ(Found(), Ids{idLine});
}

TEST_F(EntitySelection, FindsWhatPassesThroughABoxOnALayerOrOnAny) {
    const AcDbObjectId idIn = AddLine(5.0);
    AddLine(50.0);
    DrawEntity(*CDbOpen<AcDbLine>(idIn).Get());
    EXPECT_EQ(ObjectIdsInBox({2.0, 0.0, 0.0}, {4.0, 10.0, 0.0}, "", m_ids), 1);
    EXPECT_EQ(Found(), Ids{idIn});
    EXPECT_EQ(ObjectIdsInBox({2.0, 0.0, 0.0}, {4.0, 10.0, 0.0}, "0", m_ids), 1);
    EXPECT_EQ(Found(), (Ids{idIn, idIn}));
    EXPECT_EQ(ObjectIdsInBox({2.0, 0.0, 0.0}, {4.0, 10.0, 0.0}, "轴线", m_ids), 0);
}

TEST_F(EntitySelection, TakesWhatTheUserPicks) {
    const AcDbObjectId idText = AddText();
    AcDbObjectId id;
    EXPECT_EQ(PickEntity(g_pPickAny, id), 0) << "cancelled";
    m_drawing.m_arPicks = {idText};
    EXPECT_EQ(PickEntity(g_pPickAny, id), 1);
    EXPECT_EQ(id, idText);
    EXPECT_EQ(m_drawing.m_strPrompt, "\n请选择一个实体: ");
    EXPECT_EQ(PickEntity(g_pPickCentreLine, id), 1);
    EXPECT_EQ(m_drawing.m_strPrompt, "\r\n请选择中线:");
}

TEST_F(EntitySelection, PrintsThePromptOfAPickOfSeveral) {
    const AcDbObjectId idFirst = AddText(), idSecond = AddText();
    EXPECT_EQ(PickEntities("\n请选择: ", m_ids), 0);
    m_drawing.m_arPicks = {idSecond, idFirst};
    EXPECT_EQ(PickEntities("\n请选择: ", m_ids), 1);
    EXPECT_EQ(Found(), (Ids{idSecond, idFirst}));
    EXPECT_EQ(m_drawing.m_strPrinted, "\n请选择: \n请选择: ");
}
