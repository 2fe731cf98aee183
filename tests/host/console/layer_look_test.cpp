#include "host/console/layer_look.h"

#include "platform/acad/db_tables.h"

#include <gtest/gtest.h>

TEST(LayerLook, IsBlackAndContinuousWithoutALayer) {
    const CLayerLook look = LookOf(AcDbObjectId::kNull);
    EXPECT_EQ(look.m_nColor, 7);
    EXPECT_EQ(look.m_strLinetype, "");
}

TEST(LayerLook, FollowsTheLayersColour) {
    AcDbDatabase drawing;
    const AcDbObjectId idLayer = drawing.clayer();
    ASSERT_EQ(CDbOpen<AcDbLayerTableRecord>(idLayer, AcDb::kForWrite)->SetColorIndex(3), Acad::eOk);
    EXPECT_EQ(LookOf(idLayer).m_nColor, 3);
}

TEST(LayerLook, StandsInForByLayerAlone) {
    CDisplayList list(3);
    list[1].m_strLinetype = "Dashed2";
    list[2].m_strLinetype = "BYLAYER";
    const CDisplayList resolved = WithLinetypesOf({7, "Hidden"}, list);
    EXPECT_EQ(resolved[0].m_strLinetype, "Hidden");
    EXPECT_EQ(resolved[1].m_strLinetype, "Dashed2");
    EXPECT_EQ(resolved[2].m_strLinetype, "Hidden");
}

TEST(LayerLook, ALinetypeThatTheDrawingLacksIsContinuous) {
    EXPECT_TRUE(DashesOf(AcDbDatabase(), "nowhere").empty());
}
