#include "host/console/plot_drawing.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/console/redraw.h"
#include "host/plot/headless.h"
#include "platform/acad/db_polyline.h"

namespace {

class PlotDrawingTest : public testing::Test {
protected:
    PlotDrawingTest() {
        StartHeadlessQt();
        std::string folder = (std::filesystem::temp_directory_path() / "tvcad-test-XXXXXX").string();
        m_folder = mkdtemp(folder.data());
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
        auto* const pLine = new AcDbPolyline;
        pLine->addVertexAt(0, AcGePoint2d(0.0, 0.0));
        pLine->addVertexAt(1, AcGePoint2d(100.0, 0.0));
        space->appendAcDbEntity(m_idLine, pLine);
        pLine->close();
        DrawChanged(m_drawing);
    }
    ~PlotDrawingTest() override { std::filesystem::remove_all(m_folder); }
    PlotDrawingTest(const PlotDrawingTest&) = delete;
    PlotDrawingTest& operator=(const PlotDrawingTest&) = delete;

    std::string Svg() {
        CFonts fonts({});
        std::string reason;
        EXPECT_TRUE(PlotDrawing(m_drawing, fonts, m_folder / "a.svg", &reason)) << reason;
        std::ostringstream text;
        text << std::ifstream(m_folder / "a.svg").rdbuf();
        return text.str();
    }

    AcDbDatabase m_drawing;
    AcDbObjectId m_idLine;
    std::filesystem::path m_folder;
};

} // namespace

TEST_F(PlotDrawingTest, ByLayerTakesColourAndLineTypeOfTheLayer) {
    const std::string plain = Svg();
    CDbOpen<AcDbLayerTableRecord>(m_drawing.clayer(), AcDb::kForWrite)->SetColorIndex(1);
    const std::string red = Svg();
    EXPECT_NE(red, plain);
    AcDbObjectId idDashed;
    {
        auto* const pDashed = new AcDbLinetypeTableRecord;
        pDashed->setName(L"Dashed2");
        pDashed->SetPattern(L"", {5.0, -3.0});
        CDbOpen<AcDbLinetypeTable>(m_drawing.linetypeTableId(), AcDb::kForWrite)->add(idDashed, pDashed);
        pDashed->close();
    }
    CDbOpen<AcDbLayerTableRecord>(m_drawing.clayer(), AcDb::kForWrite)->setLinetypeObjectId(idDashed);
    const std::string dashed = Svg();
    EXPECT_NE(dashed, red);
    m_drawing.setLtscale(2.0);
    EXPECT_NE(Svg(), dashed);
}

TEST_F(PlotDrawingTest, ShowsWhatWasDrawnLast) {
    const std::string before = Svg();
    {
        const CDbOpen<AcDbPolyline> line(m_idLine, AcDb::kForWrite);
        line->setPointAt(1, AcGePoint2d(50.0, 0.0));
    }
    EXPECT_EQ(Svg(), before);
    DrawChanged(m_drawing);
    EXPECT_NE(Svg(), before);
}

TEST_F(PlotDrawingTest, AnEntityErasedIsNotPlotted) {
    const std::string before = Svg();
    CDbOpen<AcDbPolyline>(m_idLine, AcDb::kForWrite)->erase();
    EXPECT_NE(Svg(), before);
}
