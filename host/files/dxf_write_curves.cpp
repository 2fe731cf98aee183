#include "host/files/dxf_write_curves.h"

#include "host/files/dxf_angles.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"

#include <algorithm>

namespace {

void WriteVertex(CDxfOutput& out, const CPolylineVertex& vertex) {
    out.Point(10, vertex.m_pt);
    if (vertex.m_dStartWidth > 0.0 || vertex.m_dEndWidth > 0.0) {
        out.Real(40, std::max(vertex.m_dStartWidth, 0.0));
        out.Real(41, std::max(vertex.m_dEndWidth, 0.0));
    }
    if (vertex.m_dBulge != 0.0) out.Real(42, vertex.m_dBulge);
}

std::int64_t CountOf(std::size_t nSize) {
    return static_cast<std::int64_t>(nSize);
}

} // namespace

bool WriteDxfLine(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbLine& line = *AcDbLine::cast(&entity);
    out.Subclass("AcDbLine");
    out.Point(10, line.startPoint());
    out.Point(11, line.endPoint());
    return true;
}

bool WriteDxfArc(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbArc& arc = *AcDbArc::cast(&entity);
    out.Subclass("AcDbCircle");
    out.Point(10, arc.center());
    out.Real(40, arc.radius());
    out.Subclass("AcDbArc");
    out.Real(50, DxfDegrees(arc.startAngle()));
    out.Real(51, DxfDegrees(arc.endAngle()));
    return true;
}

bool WriteDxfPolyline(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbPolyline& polyline = *AcDbPolyline::cast(&entity);
    out.Subclass("AcDbPolyline");
    out.Whole(90, polyline.numVerts());
    out.Whole(70, polyline.isClosed() ? 1 : 0);
    for (const CPolylineVertex& vertex : polyline.Vertices())
        WriteVertex(out, vertex);
    return polyline.numVerts() > 0;
}

bool WriteDxfSpline(CDxfOutput& out, const AcDbEntity& entity) {
    constexpr int nClosed = 1, nPeriodic = 2, nRational = 4;
    const AcDbSpline& spline = *AcDbSpline::cast(&entity);
    const CNurbs nurbs = spline.Nurbs();
    const std::vector<AcGePoint3d>& arFitPoints = spline.FitPoints();
    out.Subclass("AcDbSpline");
    out.Whole(70, (spline.isClosed() ? nClosed : 0) | (spline.isPeriodic() ? nPeriodic : 0) |
                      (spline.isRational() ? nRational : 0));
    out.Whole(71, nurbs.m_nDegree);
    out.Whole(72, CountOf(nurbs.m_arKnots.size()));
    out.Whole(73, CountOf(nurbs.m_arControlPoints.size()));
    out.Whole(74, CountOf(arFitPoints.size()));
    out.Real(44, spline.FitTolerance());
    for (const double dKnot : nurbs.m_arKnots)
        out.Real(40, dKnot);
    for (const double dWeight : nurbs.m_arWeights)
        out.Real(41, dWeight);
    for (const AcGePoint3d& point : nurbs.m_arControlPoints)
        out.Point(10, point);
    for (const AcGePoint3d& point : arFitPoints)
        out.Point(11, point);
    return !nurbs.m_arControlPoints.empty() || !arFitPoints.empty();
}
