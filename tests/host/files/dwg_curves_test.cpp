#include "host/files/dwg_curves.h"

#include "host/files/dwg_common.h"
#include "tests/host/files/dwg_round_trip.h"
#include "tests/host/files/hex_bytes.h"

#include <cmath>

namespace {

/// A line with all that belongs to it.
struct CWholeLine {
    CDwgEntityCommon m_common;
    CDwgLine m_line;
};
template <class Io, class Whole>
void FileWholeLine(Io& io, Whole& whole) {
    FileEntityCommon(io, whole.m_common);
    FileLine(io, whole.m_line);
}

const CBytes g_knownLine = HexBytes(
    "44 D6 C0 40 00 00 58 25 34 21 D8 00 00 00 00 00 00 00 06 00 00 00 00 00 00 B2 80 00 00 00 00 00 00 00 01"
    "80 00 00 00 00 00 24 A0 66 08 08 2C 2A 22 00");

} // namespace

TEST(DwgLine, IsReadFromAKnownOne) {
    const auto whole = FromContent<CWholeLine>(g_knownLine, 0x60, DWG_FILED(FileWholeLine));
    EXPECT_EQ(whole.m_line.m_ptStart, AcGePoint3d(0.0, 0.0, 0.0));
    EXPECT_EQ(whole.m_line.m_ptEnd, AcGePoint3d(100.0, 50.0, 0.0));
    EXPECT_EQ(whole.m_common.m_nPlace, g_nDwgInModelSpace);
    EXPECT_EQ(whole.m_common.m_hNext, SoftPointer(0x61));
    EXPECT_EQ(whole.m_common.m_hLayer, HardPointer(0x10));
}

TEST(DwgLine, IsWrittenSoThatItComesBack) {
    const CDwgLine line{{1.0, 2.0, 3.0}, {1.0, -0.0, 4.0}, 0.5, {0.0, 1.0, 0.0}};
    const CDwgLine back = ThroughRecord(line, DWG_FILED(FileLine));
    EXPECT_EQ(back.m_ptStart, line.m_ptStart);
    EXPECT_EQ(back.m_ptEnd, line.m_ptEnd);
    EXPECT_TRUE(std::signbit(back.m_ptEnd.y));
    EXPECT_EQ(back.m_dThickness, 0.5);
    EXPECT_EQ(back.m_vecExtrusion, line.m_vecExtrusion);
}

TEST(DwgLine, IsNotFlatAtANegativeZero) {
    const CDwgLine line{{0.0, 0.0, -0.0}, {1.0, 1.0, 0.0}};
    const CDwgLine back = ThroughRecord(line, DWG_FILED(FileLine));
    EXPECT_TRUE(std::signbit(back.m_ptStart.z));
    EXPECT_FALSE(std::signbit(back.m_ptEnd.z));
}

TEST(DwgArc, KeepsCenterRadiusAndAngles) {
    const CDwgArc arc{{1.5, -0.0, 0.0}, 2.5, 0.0, {0.0, 0.0, 1.0}, 0.25, 3.0};
    const CDwgArc back = ThroughRecord(arc, DWG_FILED(FileArc));
    EXPECT_EQ(back.m_ptCenter, arc.m_ptCenter);
    EXPECT_TRUE(std::signbit(back.m_ptCenter.y));
    EXPECT_EQ(back.m_dRadius, 2.5);
    EXPECT_EQ(back.m_dStart, 0.25);
    EXPECT_EQ(back.m_dEnd, 3.0);
}

TEST(DwgPolyline, HoldsWhatItsFlagsTell) {
    CDwgPolyline polyline;
    polyline.m_arPoints = {{1.0, 2.0}, {1.0, 5.0}, {-0.0, 5.0}};
    EXPECT_EQ(ThroughRecord(polyline, DWG_FILED(FilePolyline)).m_arPoints.size(), 3u);
    polyline.m_nFlags = CDwgPolyline::s_nBulges | CDwgPolyline::s_nWidths | CDwgPolyline::s_nClosed |
                        CDwgPolyline::s_nElevation | CDwgPolyline::s_nConstantWidth |
                        CDwgPolyline::s_nThickness | CDwgPolyline::s_nExtrusion;
    polyline.m_dElevation = 7.0;
    polyline.m_dConstantWidth = 0.5;
    polyline.m_dThickness = 0.25;
    polyline.m_arBulges = {0.0, 1.0, -0.5};
    polyline.m_arWidths = {{1.0, 2.0}, {0.0, 0.0}, {3.0, 4.0}};
    const CDwgPolyline back = ThroughRecord(polyline, DWG_FILED(FilePolyline));
    EXPECT_EQ(back.m_nFlags, polyline.m_nFlags);
    EXPECT_EQ(back.m_arPoints[1].y, 5.0);
    EXPECT_TRUE(std::signbit(back.m_arPoints[2].x));
    EXPECT_EQ(back.m_arBulges, polyline.m_arBulges);
    EXPECT_EQ(back.m_arWidths[2].m_dEnd, 4.0);
    EXPECT_EQ(back.m_dElevation, 7.0);
    EXPECT_EQ(back.m_dConstantWidth, 0.5);
    EXPECT_EQ(back.m_dThickness, 0.25);
}

TEST(DwgPolyline, MayHaveNoPoints) {
    EXPECT_TRUE(ThroughRecord(CDwgPolyline(), DWG_FILED(FilePolyline)).m_arPoints.empty());
}

TEST(DwgPolyline, FailsForMorePointsThanThereAre) {
    CDwgRecordWriter writer;
    writer.BS(std::uint16_t{0});
    writer.BL(std::uint32_t{0xFFFFFFF0});
    const CDwgRecord record = writer.TakeRecord(g_nDwgPolyline, 0x60);
    CDwgRecordReader reader(record);
    CDwgPolyline polyline;
    FilePolyline(reader, polyline);
    EXPECT_TRUE(reader.Failed());
    EXPECT_TRUE(polyline.m_arPoints.empty());
}

TEST(DwgSpline, ByFitPointsHoldsTheseAlone) {
    CDwgSpline spline;
    spline.m_nForm = CDwgSpline::s_nByFitPoints;
    spline.m_dFitTolerance = 0.5;
    spline.m_arFitPoints = {{0.0, 0.0, 0.0}, {1.0, 2.0, 0.0}, {3.0, 3.0, 0.0}};
    const CDwgSpline back = ThroughRecord(spline, DWG_FILED(FileSpline));
    EXPECT_EQ(back.m_arFitPoints, spline.m_arFitPoints);
    EXPECT_EQ(back.m_dFitTolerance, 0.5);
    EXPECT_TRUE(back.m_arControlPoints.empty());
}

TEST(DwgSpline, ByControlPointsHoldsKnotsAndWeights) {
    CDwgSpline spline;
    spline.m_nDegree = 2;
    spline.m_bRational = spline.m_bWeights = true;
    spline.m_arKnots = {0.0, 0.0, 0.0, 1.0, 1.0, 1.0};
    spline.m_arControlPoints = {{{0.0, 0.0, 0.0}, 1.0}, {{1.0, 1.0, 0.0}, 0.5}, {{2.0, 0.0, 0.0}, 1.0}};
    const CDwgSpline back = ThroughRecord(spline, DWG_FILED(FileSpline));
    EXPECT_EQ(back.m_nDegree, 2u);
    EXPECT_TRUE(back.m_bRational);
    EXPECT_EQ(back.m_arKnots, spline.m_arKnots);
    EXPECT_EQ(back.m_arControlPoints[1].m_pt, AcGePoint3d(1.0, 1.0, 0.0));
    EXPECT_EQ(back.m_arControlPoints[1].m_dWeight, 0.5);
}

TEST(DwgSpline, FailsForAFormThatIsNone) {
    CDwgRecordWriter writer;
    writer.BL(std::uint32_t{3});
    writer.BL(std::uint32_t{3});
    const CDwgRecord record = writer.TakeRecord(g_nDwgSpline, 0x60);
    CDwgRecordReader reader(record);
    CDwgSpline spline;
    FileSpline(reader, spline);
    EXPECT_TRUE(reader.Failed());
}
