#include "drawing/layers.h"

#include "drawing/line_types.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class Layers : public testing::Test {
protected:
    CTestDrawing m_drawing;
};
} // namespace

TEST_F(Layers, LayersAreFoundByName) {
    AcDbObjectId id;
    EXPECT_EQ(LayerIdByName("0", id, nullptr), Acad::eOk);
    EXPECT_EQ(id, m_drawing.Database().clayer());
    EXPECT_EQ(LayerIdByName("探孔", id, nullptr), Acad::eKeyNotFound);
}

TEST_F(Layers, LayerZeroTakesALineTypeOrGoesContinuous) {
    AcDbObjectId idDashed;
    LoadLinetypeId("Dashed2", nullptr, idDashed);
    const auto linetype = [&] {
        const CDbOpen<AcDbLayerTableRecord> pLayer(m_drawing.Database().clayer());
        return SymbolName(pLayer->linetypeObjectId());
    };
    EXPECT_EQ(SetLayerZeroLinetype("Dashed2"), 1);
    EXPECT_EQ(linetype(), "Dashed2");
    EXPECT_EQ(SetLayerZeroLinetype("DASHED"), 1);
    EXPECT_EQ(linetype(), "Continuous");
    EXPECT_EQ(m_drawing.m_strPrinted, "\nUnable to find DASHED linetype. Using CONTINUOUS");
}
