#include "host/files/dwg_curve_parts.h"

#include <algorithm>

namespace {

/// Whether all widths are the constant one.
bool IsConstantWidth(const CDwgPolyline& part) {
    return (part.m_nFlags & CDwgPolyline::s_nConstantWidth) != 0 &&
           std::ranges::all_of(part.m_arWidths, [&part](const CDwgWidths& widths) {
               return widths.m_dStart == part.m_dConstantWidth && widths.m_dEnd == part.m_dConstantWidth;
           });
}

/// What the widths and bulges of the part say of its form.
void SetForm(CDwgPolyline& part, bool bWidths, bool bClosed) {
    const bool bConstant = bWidths && IsConstantWidth(part);
    const bool bBulges = !std::ranges::all_of(part.m_arBulges, IsPlainZero);
    if (!bBulges) part.m_arBulges.clear();
    if (!bWidths || bConstant) part.m_arWidths.clear();
    const auto set = [&part](std::uint16_t nFlag, bool bSet) {
        part.m_nFlags =
            static_cast<std::uint16_t>(bSet ? part.m_nFlags | nFlag : part.m_nFlags & ~unsigned{nFlag});
    };
    set(CDwgPolyline::s_nConstantWidth, bConstant);
    set(CDwgPolyline::s_nWidths, bWidths && !bConstant);
    set(CDwgPolyline::s_nBulges, bBulges);
    set(CDwgPolyline::s_nClosed, bClosed);
}

bool IsSame(const CDwgSpline& part, const AcDbSpline& spline) {
    return part.m_nForm == CDwgSpline::s_nByFitPoints && spline.hasFitData() &&
           part.m_nDegree == static_cast<std::uint32_t>(spline.degree()) &&
           part.m_dFitTolerance == spline.FitTolerance() &&
           std::ranges::equal(part.m_arFitPoints, spline.FitPoints(), [](const auto& a, const auto& b) {
               return a.x == b.x && a.y == b.y && a.z == b.z;
           });
}

} // namespace

void TakePolyline(CDwgPolyline& part, const AcDbPolyline& polyline) {
    part.m_arPoints.clear();
    part.m_arBulges.clear();
    part.m_arWidths.clear();
    bool bWidths = false;
    for (const CPolylineVertex& vertex : polyline.Vertices()) {
        part.m_arPoints.push_back(vertex.m_pt);
        part.m_arBulges.push_back(vertex.m_dBulge);
        part.m_arWidths.push_back({std::max(vertex.m_dStartWidth, 0.0), std::max(vertex.m_dEndWidth, 0.0)});
        bWidths = bWidths || vertex.m_dStartWidth >= 0.0 || vertex.m_dEndWidth >= 0.0;
    }
    SetForm(part, bWidths, polyline.isClosed());
}

void TakeSpline(CDwgSpline& part, const AcDbSpline& spline) {
    if (IsSame(part, spline)) return; // with its tangents
    const CDwgSpline former = std::exchange(part, {});
    part.m_nDegree = static_cast<std::uint32_t>(spline.degree());
    if (spline.hasFitData() && spline.degree() == 3) {
        part.m_nForm = CDwgSpline::s_nByFitPoints;
        part.m_dFitTolerance = spline.FitTolerance();
        part.m_arFitPoints = spline.FitPoints();
        return;
    }
    const CNurbs nurbs = spline.Nurbs();
    part.m_nDegree = static_cast<std::uint32_t>(nurbs.m_nDegree);
    part.m_dKnotTolerance = former.m_dKnotTolerance;
    part.m_dControlTolerance = former.m_dControlTolerance;
    part.m_bRational = part.m_bWeights = spline.isRational();
    part.m_bClosed = spline.isClosed();
    part.m_bPeriodic = spline.isPeriodic();
    part.m_arKnots = nurbs.m_arKnots;
    for (std::size_t i = 0; i < nurbs.m_arControlPoints.size(); ++i)
        part.m_arControlPoints.push_back(
            {nurbs.m_arControlPoints[i], part.m_bWeights ? nurbs.m_arWeights[i] : 1.0});
}
