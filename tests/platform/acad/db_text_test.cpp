#include "platform/acad/db_text.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/host_application.h"
#include "platform/acad/memory_filer.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

namespace {

void ExpectBox(const AcDbText& text, double minX, double minY, double maxX, double maxY) {
    AcDbExtents extents;
    ASSERT_EQ(text.getGeomExtents(extents), Acad::eOk);
    EXPECT_NEAR(extents.minPoint().x, minX, 1e-12);
    EXPECT_NEAR(extents.minPoint().y, minY, 1e-12);
    EXPECT_NEAR(extents.maxPoint().x, maxX, 1e-12);
    EXPECT_NEAR(extents.maxPoint().y, maxY, 1e-12);
}

} // namespace

TEST(AcDbText, ExtendsByAdvanceWidthAndHeight) {
    const CFixedMetrics metrics;
    AcDbText text({10, 20, 0}, L"固结AB", AcDbObjectId::kNull, 3.0);
    ExpectBox(text, 10, 20, 19, 23);
    text.setWidthFactor(0.5);
    ExpectBox(text, 10, 20, 14.5, 23);
}

TEST(AcDbText, ThatIsTurnedHasTheBoxOfItsTurnedRectangle) {
    const CFixedMetrics metrics;
    const AcDbText upright({10, 20, 0}, L"固结AB", AcDbObjectId::kNull, 3.0, std::numbers::pi / 2);
    ExpectBox(upright, 7, 20, 10, 29);
    const AcDbText slanted({0, 0, 0}, L"AB", AcDbObjectId::kNull, 1.0, std::numbers::pi / 4);
    const double half = std::sqrt(0.5);
    ExpectBox(slanted, -half, 0, half, 2 * half);
}

TEST(AcDbText, HasNoExtentsWithoutMetricsTextOrNumbers) {
    AcDbExtents extents;
    const AcDbText plain({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0);
    EXPECT_EQ(plain.getGeomExtents(extents), Acad::eInvalidExtents);
    const CFixedMetrics metrics;
    EXPECT_EQ(plain.getGeomExtents(extents), Acad::eOk);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const AcDbText broken({0, nan, 0}, L"A", AcDbObjectId::kNull, 1.0);
    EXPECT_EQ(AcDbText({0, 0, 0}, L"", AcDbObjectId::kNull, 1.0).getGeomExtents(extents),
              Acad::eInvalidExtents);
    EXPECT_EQ(AcDbText({0, 0, 0}, L"A").getGeomExtents(extents), Acad::eInvalidExtents); // height 0
    EXPECT_EQ(AcDbText({0, 0, 0}, L"A", AcDbObjectId::kNull, nan).getGeomExtents(extents),
              Acad::eInvalidExtents);
    EXPECT_EQ(broken.getGeomExtents(extents), Acad::eInvalidExtents);
}

TEST(AcDbText, IsMeasuredWithTheFontOfItsStyleAndItsOwnWidthFactor) {
    CFixedMetrics metrics;
    AcDbDatabase database;
    auto* const pStyle = new AcDbTextStyleTableRecord;
    pStyle->setFont(L"仿宋_GB2312", 0, 0, 134, 4);
    pStyle->setXScale(0.7);
    pStyle->setTextSize(9.0);
    const AcDbObjectId idStyle = AddRecord<AcDbTextStyleTable>(database.textStyleTableId(), L"标题", pStyle);
    const AcDbText text({0, 0, 0}, L"AB", idStyle, 2.0);
    ExpectBox(text, 0, 0, 2, 2);
    EXPECT_EQ(metrics.m_font.m_strFont, "仿宋_GB2312");
    EXPECT_EQ(metrics.m_font.m_strBigFont, "");
    EXPECT_EQ(text.StyleName(), "标题");
}

TEST(AcDbText, WithoutAStyleHasStandardOfItsOwnOrTheWorkingDrawing) {
    CFixedMetrics metrics;
    AcDbExtents extents;
    AcDbDatabase database, working;
    {
        CDbOpen<AcDbTextStyleTableRecord> style(database.textstyle(), AcDb::kForWrite);
        style->setFileName(L"own.shx");
        style->setBigFontFileName(L"ownbig.shx");
    }
    CDbOpen<AcDbTextStyleTableRecord>(working.textstyle(), AcDb::kForWrite)->setFileName(L"working.shx");
    acdbHostApplicationServices()->setWorkingDatabase(&working);
    const AcDbText free({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0);
    EXPECT_EQ(free.StyleName(), "Standard");
    free.getGeomExtents(extents);
    EXPECT_EQ(metrics.m_font.m_strFont, "working.shx");
    const AcDbObjectId id = Append(database, new AcDbText({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0));
    CDbOpen<AcDbText>(id)->getGeomExtents(extents);
    EXPECT_EQ(metrics.m_font.m_strFont, "own.shx");
    EXPECT_EQ(metrics.m_font.m_strBigFont, "ownbig.shx");
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(free.getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(metrics.m_font.m_strFont, "");
}

TEST(AcDbText, WithoutAStyleHasStandardInWhateverCaseButNoErasedOne) {
    CFixedMetrics metrics;
    AcDbExtents extents;
    AcDbDatabase database;
    {
        CDbOpen<AcDbTextStyleTableRecord> style(database.textstyle(), AcDb::kForWrite);
        style->setName(L"STANDARD");
        style->setFileName(L"own.shx");
    }
    const AcDbObjectId id = Append(database, new AcDbText({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0));
    CDbOpen<AcDbText>(id)->getGeomExtents(extents);
    EXPECT_EQ(metrics.m_font.m_strFont, "own.shx");
    CDbOpen<AcDbTextStyleTableRecord>(database.textstyle(), AcDb::kForWrite)->erase();
    CDbOpen<AcDbText>(id)->getGeomExtents(extents);
    EXPECT_EQ(metrics.m_font.m_strFont, "");
}

TEST(AcDbText, IsMeasuredWithoutAFontWhereTheWorkingDrawingHasNoTables) {
    CFixedMetrics metrics;
    AcDbExtents extents;
    AcDbDatabase empty(false);
    acdbHostApplicationServices()->setWorkingDatabase(&empty);
    EXPECT_EQ(AcDbText({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0).getGeomExtents(extents), Acad::eOk);
    EXPECT_EQ(metrics.m_font.m_strFont, "");
}

TEST(AcDbText, RefusesNumbersThatAreNone) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    AcDbDatabase database;
    AcDbText text({0, 0, 0}, L"A", AcDbObjectId::kNull, 1.0);
    EXPECT_EQ(text.setHeight(-1.0), Acad::eInvalidInput);
    EXPECT_EQ(text.setHeight(nan), Acad::eInvalidInput);
    EXPECT_EQ(text.setWidthFactor(0.0), Acad::eInvalidInput);
    EXPECT_EQ(text.setRotation(nan), Acad::eInvalidInput);
    EXPECT_EQ(text.setOblique(nan), Acad::eInvalidInput);
    EXPECT_EQ(text.setTextString(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(text.setTextStyle(database.clayer()), Acad::eNotThatKindOfClass);
    EXPECT_EQ(text.setTextStyle(database.textstyle()), Acad::eOk);
    EXPECT_EQ(text.height(), 1.0);
    EXPECT_EQ(text.widthFactor(), 1.0);
    EXPECT_EQ(text.rotation(), 0.0);
    EXPECT_STREQ(text.textString(), L"A");
}

TEST(AcDbText, DrawsOneTextWithItsOwnWidthFactorAndFullTracking) {
    AcDbDatabase database;
    auto* const pStyle = new AcDbTextStyleTableRecord;
    pStyle->setFont(L"仿宋_GB2312", 0, 0, 134, 4);
    pStyle->setXScale(0.7);
    const AcDbObjectId idStyle = AddRecord<AcDbTextStyleTable>(database.textStyleTableId(), L"标题", pStyle);
    AcDbText text({1, 2, 0}, L"固结 (kPa)", idStyle, 2.5, std::numbers::pi / 2);
    text.setOblique(0.25);
    const CDisplayList list = DrawEntity(text);
    ASSERT_EQ(list.size(), 1u);
    const auto& shape = std::get<CTextPrimitive>(list[0].m_shape);
    EXPECT_EQ(shape.m_ptPosition, AcGePoint3d(1, 2, 0));
    EXPECT_EQ(shape.m_vecNormal, AcGeVector3d::kZAxis);
    EXPECT_EQ(shape.m_vecDirection, AcGeVector3d::kYAxis);
    EXPECT_EQ(shape.m_strText, "固结 (kPa)");
    EXPECT_EQ(shape.m_nLength, -1);
    EXPECT_EQ(shape.m_dHeight, 2.5);
    EXPECT_EQ(shape.m_dXScale, 1.0);
    EXPECT_EQ(shape.m_dOblique, 0.25);
    EXPECT_EQ(shape.m_dTracking, 100.0);
    EXPECT_EQ(shape.m_strFont, "仿宋_GB2312");
}

TEST(AcDbText, TurnsAndGrowsAboutAPoint) {
    AcDbText text({2, 0, 0}, L"AB", AcDbObjectId::kNull, 1.0);
    text.transformBy(
        AcGeMatrix3d::rotation(std::numbers::pi / 2, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin));
    EXPECT_NEAR(text.position().distanceTo({0, 2, 0}), 0.0, 1e-12);
    EXPECT_NEAR(text.rotation(), std::numbers::pi / 2, 1e-12);
    text.transformBy(AcGeMatrix3d::scaling(3.0, AcGePoint3d::kOrigin));
    EXPECT_NEAR(text.height(), 3.0, 1e-12);
    EXPECT_NEAR(text.position().y, 6.0, 1e-12);
    EXPECT_EQ(text.transformBy(AcGeMatrix3d::rotation(1.0, AcGeVector3d::kXAxis, AcGePoint3d::kOrigin)),
              Acad::eNotApplicable);
}

TEST(AcDbText, StaysReadableInTheMirroredRectangle) {
    const CFixedMetrics metrics;
    AcDbText sideways({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    sideways.transformBy(AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis));
    ExpectBox(sideways, -4, 1, -2, 2);
    EXPECT_NEAR(sideways.rotation(), 0.0, 1e-12);
    AcDbText upsideDown({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    upsideDown.transformBy(AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis));
    ExpectBox(upsideDown, 2, -2, 4, -1);
    EXPECT_NEAR(upsideDown.rotation(), 0.0, 1e-12);
}

TEST(AcDbText, BeginsLeftOnItsBaseLineAndTheAlignmentPointIsOfNoAccount) {
    const CFixedMetrics metrics;
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    EXPECT_EQ(text.horizontalMode(), AcDb::kTextLeft);
    EXPECT_EQ(text.verticalMode(), AcDb::kTextBase);
    EXPECT_TRUE(text.isDefaultAlignment());
    text.setAlignmentPoint({50, 50, 0});
    EXPECT_EQ(text.adjustAlignment(), Acad::eOk);
    EXPECT_EQ(text.position(), AcGePoint3d(2, 1, 0));
}

TEST(AcDbText, StandsAboutItsAlignmentPointOnceAdjusted) {
    const CFixedMetrics metrics;
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 2.0); // 4 wide
    text.setAlignmentPoint({10, 20, 5});
    text.setHorizontalMode(AcDb::kTextCenter);
    EXPECT_EQ(text.position(), AcGePoint3d(2, 1, 0)); // not yet
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(8, 20, 5));
    text.setHorizontalMode(AcDb::kTextRight);
    text.setVerticalMode(AcDb::kTextTop);
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(6, 18, 5));
    text.setVerticalMode(AcDb::kTextVertMid);
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(6, 19, 5));
    text.setHorizontalMode(AcDb::kTextMid);
    text.setVerticalMode(AcDb::kTextBase);
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(8, 19, 5));
    text.setHorizontalMode(AcDb::kTextLeft);
    text.setVerticalMode(AcDb::kTextBottom);
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(10, 20, 5));
    text.setHorizontalMode(AcDb::kTextMid);
    text.setRotation(std::numbers::pi / 2);
    text.adjustAlignment();
    EXPECT_NEAR(text.position().distanceTo({11, 18, 5}), 0.0, 1e-12);
}

TEST(AcDbText, WithoutExtentsStandsOnItsAlignmentPoint) {
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 2.0);
    text.setAlignmentPoint({10, 20, 0});
    text.setHorizontalMode(AcDb::kTextCenter);
    text.adjustAlignment();
    EXPECT_EQ(text.position(), AcGePoint3d(10, 20, 0));
}

TEST(AcDbText, ReachesFromItsPositionToItsAlignmentPointWhenAlignedOrFitted) {
    const CFixedMetrics metrics;
    AcDbText aligned({1, 1, 0}, L"ABCD", AcDbObjectId::kNull, 2.0);
    aligned.setAlignmentPoint({1, 9, 0});
    aligned.setHorizontalMode(AcDb::kTextAlign);
    aligned.adjustAlignment();
    EXPECT_NEAR(aligned.rotation(), std::numbers::pi / 2, 1e-12);
    EXPECT_EQ(aligned.height(), 4.0);
    EXPECT_EQ(aligned.position(), AcGePoint3d(1, 1, 0));
    AcDbText fitted({1, 1, 0}, L"ABCD", AcDbObjectId::kNull, 2.0);
    fitted.setAlignmentPoint({7, 1, 0});
    fitted.setHorizontalMode(AcDb::kTextFit);
    fitted.adjustAlignment();
    EXPECT_EQ(fitted.height(), 2.0);
    EXPECT_EQ(fitted.widthFactor(), 1.5);
    fitted.setAlignmentPoint({1, 1, 0});
    fitted.adjustAlignment(); // no way to go
    EXPECT_EQ(fitted.widthFactor(), 1.5);
}

TEST(AcDbText, TakesItsAlignmentPointAlong) {
    const CFixedMetrics metrics;
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    text.setHorizontalMode(AcDb::kTextRight);
    text.setAlignmentPoint({4, 1, 0});
    text.transformBy(AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin));
    EXPECT_EQ(text.alignmentPoint(), AcGePoint3d(8, 2, 0));
    text.transformBy(AcGeMatrix3d::mirroring(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis));
    EXPECT_NEAR(text.position().distanceTo({-8, 2, 0}), 0.0, 1e-12);
    EXPECT_NEAR(text.alignmentPoint().distanceTo({-4, 2, 0}), 0.0, 1e-12); // its right end again
}

TEST(AcDbText, LiesInThePlaneOfTheDrawing) {
    AcDbText text;
    EXPECT_EQ(text.setNormal({0, 0, 2}), Acad::eOk);
    EXPECT_EQ(text.setNormal({0, 0, -1}), Acad::eInvalidInput);
    EXPECT_EQ(text.normal(), AcGeVector3d::kZAxis);
}

TEST(AcDbText, FilesItsAlignment) {
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    text.setHorizontalMode(AcDb::kTextMid);
    text.setVerticalMode(AcDb::kTextTop);
    text.setAlignmentPoint({4, 5, 6});
    const CDbRecord record = RecordOf(text, AcDb::kCopyFiler);
    AcDbText copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(copy.horizontalMode(), AcDb::kTextMid);
    EXPECT_EQ(copy.verticalMode(), AcDb::kTextTop);
    EXPECT_EQ(copy.alignmentPoint(), AcGePoint3d(4, 5, 6));
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
}

TEST(AcDbText, MovesByItsPositionAndByTheAlignmentPointThatCounts) {
    AcDbText text({2, 1, 0}, L"ABCD", AcDbObjectId::kNull, 1.0);
    text.setAlignmentPoint({4, 1, 0});
    AcGePoint3dArray plain, aligned;
    AcDbIntArray osnapModes, geomIds, second;
    text.getGripPoints(plain, osnapModes, geomIds);
    EXPECT_EQ(plain.length(), 1);
    second.append(1);
    text.moveGripPointsAt(second, {1, 0, 0});
    EXPECT_EQ(text.position(), AcGePoint3d(2, 1, 0));
    text.setHorizontalMode(AcDb::kTextCenter);
    text.getGripPoints(aligned, osnapModes, geomIds);
    EXPECT_EQ(aligned.length(), 2);
    text.moveGripPointsAt(second, {1, 0, 0});
    EXPECT_EQ(text.position(), AcGePoint3d(3, 1, 0));
    EXPECT_EQ(text.alignmentPoint(), AcGePoint3d(5, 1, 0));
}
