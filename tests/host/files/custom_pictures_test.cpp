#include "host/files/custom_pictures.h"

#include "chart/chart_entity.h"
#include "drawing/styles.h"
#include "host/files/dwg_common.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/proxy_graphics.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dwg_written.h"
#include "tests/support/drawing.h"

namespace {

/// A drawing with a chart in it.
class CustomPictures : public testing::Test {
protected:
    CustomPictures() {
        CBRENChart::rxInit();
        auto* const pChart = new CBRENChart;
        pChart->m_strSYFF = g_pMethodUU;
        pChart->m_nMohrRows = 4;
        pChart->m_dMohrStepX = pChart->m_dMohrStepY = 25.0;
        m_idChart = AppendTo(m_drawing.Database().ModelSpaceId(), pChart);
        AppendTo(m_drawing.Database().ModelSpaceId(), new AcDbLine);
    }
    ~CustomPictures() override { CBRENChart::rxExit(); }

    CTestDrawing m_drawing;
    AcDbObjectId m_idChart;
    CDrawingText m_text{g_nChinesePage};
};

} // namespace

TEST_F(CustomPictures, ShowWhatTheEntityDrawsForAFile) {
    const CCustomPictures pictures(m_drawing.Database(), m_text);
    const CDbOpen<AcDbEntity> chart(m_idChart);
    const CBytes* const pBytes = pictures.Of(*chart.Get());
    ASSERT_TRUE(pBytes);
    CDisplayRecorder recorder(*chart.Get());
    chart->saveAs(&recorder, AcDb::kR14Save);
    const CDisplayList picture = ReadProxyGraphics(
        *pBytes, *chart.Get(), [&](std::string_view narrow) { return m_text.Decode(narrow); });
    const AcDbExtents box = ExtentsOf(picture), drawn = ExtentsOf(recorder.Take());
    EXPECT_NEAR(box.minPoint().distanceTo(drawn.minPoint()), 0.0, 0.01);
    EXPECT_NEAR(box.maxPoint().distanceTo(drawn.maxPoint()), 0.0, 0.01);
    EXPECT_FALSE(box.isEmpty());
}

TEST_F(CustomPictures, AreThereForCustomEntitiesAlone) {
    const CCustomPictures pictures(m_drawing.Database(), m_text);
    const CDbOpen<AcDbBlockTableRecord> space(m_drawing.Database().ModelSpaceId());
    EXPECT_FALSE(pictures.Of(*CDbOpen<AcDbEntity>(space->EntityIds()[1]).Get()));
}

TEST_F(CustomPictures, LeaveTheDrawingAsItWas) {
    AcDbDatabase& database = m_drawing.Database();
    database.SetModified(false);
    const CDbVariables variables = database.Variables();
    const auto styles = LivingRecords(database.textStyleTableId());
    const auto linetypes = LivingRecords(database.linetypeTableId());
    const CCustomPictures pictures(database, m_text);
    EXPECT_FALSE(database.IsModified());
    EXPECT_EQ(database.ltscale(), variables.m_dLtscale);
    EXPECT_EQ(database.textstyle(), variables.m_idTextstyle);
    EXPECT_EQ(database.clayer(), variables.m_idClayer);
    EXPECT_EQ(database.celtype(), variables.m_idCeltype);
    EXPECT_EQ(LivingRecords(database.textStyleTableId()), styles);
    EXPECT_EQ(LivingRecords(database.linetypeTableId()), linetypes);
    EXPECT_FALSE(CDbOpen<AcDbEntity>(m_idChart)->Picture()); // it was not drawn for the screen
}

TEST_F(CustomPictures, StandInADrawingFile) {
    const CDwgWritten written(m_drawing.Database());
    ASSERT_EQ(written.OfType(503).size(), 1u);
    const CDwgRecord record = written.OfType(503)[0];
    CDwgRecordReader reader(record);
    CDwgEntityCommon common;
    FileEntityCommon(reader, common);
    EXPECT_TRUE(common.m_bGraphics);
    const CDbOpen<AcDbEntity> chart(m_idChart);
    EXPECT_EQ(common.m_arGraphics, *CCustomPictures(m_drawing.Database(), m_text).Of(*chart.Get()));
}

TEST_F(CustomPictures, AreMissingForAnEntityThatSomebodyIsChanging) {
    const CDbOpen<AcDbEntity> chart(m_idChart, AcDb::kForWrite);
    EXPECT_FALSE(CCustomPictures(m_drawing.Database(), m_text).Of(*chart.Get()));
}
