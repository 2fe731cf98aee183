#include "host/files/dxf_read_curves.h"

#include "host/files/dxf_angles.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_spline.h"

#include <algorithm>

namespace {

constexpr int g_nClosed = 1, g_nInSpace = 8 | 16 | 64, g_nFrameVertex = 16;
constexpr int g_nPeriodic = 2, g_nRational = 4, g_nHighestDegree = 25;
constexpr double g_dSameCurve = 1e-9; ///< as a part of the curve's size

/// A polyline's width under a code; -1, which is none set, for no value and for 0.
double Width(double dValue) {
    return dValue > 0.0 ? dValue : -1.0;
}

/// Gives the tag's value to the vertex that it belongs to.
void TakeVertexValue(const CDxfTag& tag, double dWidth, std::vector<CPolylineVertex>& arVertices) {
    const auto* const pValue = std::get_if<double>(&tag.m_value);
    if (!pValue) return;
    if (tag.m_nCode == 10) arVertices.push_back({{*pValue, 0.0}, 0.0, dWidth, dWidth});
    if (arVertices.empty()) return;
    CPolylineVertex& vertex = arVertices.back();
    if (tag.m_nCode == 20) vertex.m_pt.y = *pValue;
    if (tag.m_nCode == 40) vertex.m_dStartWidth = Width(*pValue);
    if (tag.m_nCode == 41) vertex.m_dEndWidth = Width(*pValue);
    if (tag.m_nCode == 42) vertex.m_dBulge = *pValue;
}

template <class T>
AcArray<T> ArrayOf(const std::vector<T>& arValues) {
    AcArray<T> values(static_cast<int>(arValues.size()));
    for (const T& value : arValues)
        values.append(value);
    return values;
}

/// Whether two rows of control points tell the same curve, but for rounding.
bool SamePoints(const std::vector<AcGePoint3d>& a, const std::vector<AcGePoint3d>& b) {
    AcDbExtents box;
    for (const AcGePoint3d& point : a)
        box.addPoint(point);
    const double dNear = g_dSameCurve * box.minPoint().distanceTo(box.maxPoint());
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(),
        [dNear](const AcGePoint3d& p, const AcGePoint3d& q) { return p.distanceTo(q) <= dNear; });
}

std::unique_ptr<AcDbSpline> FitSpline(const CDxfRecord& record) {
    return std::make_unique<AcDbSpline>(ArrayOf(record.Points(11)), static_cast<int>(record.Whole(71, 3)) + 1,
                                        record.Real(44));
}

std::unique_ptr<AcDbSpline> ControlSpline(const CDxfRecord& record) {
    const bool bRational = record.HasFlag(70, g_nRational);
    auto pSpline = std::make_unique<AcDbSpline>(static_cast<int>(record.Whole(71, 3)), bRational,
                                                record.HasFlag(70, g_nClosed),
                                                record.HasFlag(70, g_nPeriodic), ArrayOf(record.Points(10)),
                                                ArrayOf(record.Reals(40)), ArrayOf(record.Reals(41)));
    return pSpline->Nurbs().IsCurve() ? std::move(pSpline) : nullptr;
}

} // namespace

std::unique_ptr<AcDbEntity> ReadDxfLine(const CDxfRecord& record, CDxfDrawing&) {
    return std::make_unique<AcDbLine>(record.Point(10), record.Point(11));
}

std::unique_ptr<AcDbEntity> ReadDxfArc(const CDxfRecord& record, CDxfDrawing&) {
    const double dRadius = record.Real(40);
    if (dRadius <= 0.0) return nullptr;
    return std::make_unique<AcDbArc>(record.Point(10), dRadius, DxfRadians(record.Real(50)),
                                     DxfRadians(record.Real(51)));
}

std::unique_ptr<AcDbEntity> ReadDxfLwPolyline(const CDxfRecord& record, CDxfDrawing& drawing) {
    if (record.Real(38) != 0.0) drawing.Lose("LWPOLYLINE elevation");
    std::vector<CPolylineVertex> arVertices;
    const double dWidth = Width(record.Real(43));
    for (const CDxfTag& tag : record.m_arTags)
        TakeVertexValue(tag, dWidth, arVertices);
    auto pPolyline = std::make_unique<AcDbPolyline>(static_cast<unsigned int>(arVertices.size()));
    for (const CPolylineVertex& vertex : arVertices)
        pPolyline->addVertexAt(pPolyline->numVerts(), vertex.m_pt, vertex.m_dBulge, vertex.m_dStartWidth,
                               vertex.m_dEndWidth);
    pPolyline->setClosed(record.HasFlag(70, g_nClosed));
    return pPolyline;
}

std::unique_ptr<AcDbEntity> ReadDxfSpline(const CDxfRecord& record, CDxfDrawing&) {
    const std::int64_t nDegree = record.Whole(71, 3);
    if (nDegree < 1 || nDegree > g_nHighestDegree) return nullptr;
    const std::vector<AcGePoint3d> arControlPoints = record.Points(10);
    if (!record.Find(11)) return ControlSpline(record);
    auto pThroughPoints = FitSpline(record);
    if (arControlPoints.empty() || SamePoints(arControlPoints, pThroughPoints->Nurbs().m_arControlPoints))
        return pThroughPoints;
    return ControlSpline(record);
}

std::unique_ptr<AcDbPolyline> ReadDxfPolyline(const CDxfRecord& record) {
    if (record.HasFlag(70, g_nInSpace)) return nullptr;
    auto pPolyline = std::make_unique<AcDbPolyline>();
    pPolyline->setClosed(record.HasFlag(70, g_nClosed));
    return pPolyline;
}

void AddDxfVertex(const CDxfRecord& vertex, const CDxfRecord& ofPolyline, AcDbPolyline& polyline) {
    if (vertex.HasFlag(70, g_nFrameVertex)) return;
    polyline.addVertexAt(polyline.numVerts(), {vertex.Real(10), vertex.Real(20)}, vertex.Real(42),
                         Width(vertex.Real(40, ofPolyline.Real(40))),
                         Width(vertex.Real(41, ofPolyline.Real(41))));
}
