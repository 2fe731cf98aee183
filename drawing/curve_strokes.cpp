#include "drawing/curve_strokes.h"

#include "drawing/dashed_scope.h"
#include "drawing/explode_set.h"
#include "drawing/polyline_output.h"
#include "drawing/polyline_vertices.h"
#include "platform/acad/db_spline.h"

#include <memory>

namespace {
// Two half circles with a band twice as wide as their radius: a full dot 1.0 across.
constexpr double g_dDotReach = 0.25;
constexpr double g_dDotWidth = 0.5;
constexpr unsigned int g_nDotVertices = 3;
constexpr Adesk::UInt16 g_nDotColor = 1;

/// Fills an empty polyline with the outline of a dot.
void FillDot(AcDbPolyline& dot, const AcGePoint3d& point) {
    for (const double dReach : {g_dDotReach, -g_dDotReach, g_dDotReach})
        AppendVertex(dot, {{point.x, point.y + dReach}, 1.0, g_dDotWidth, g_dDotWidth});
}
} // namespace

void DrawSolidCurve(AcGiWorldDraw* pMode, const AcGePoint3dArray& points, Adesk::UInt16 nColor) {
    AcDbSpline curve(points);
    pMode->subEntityTraits().setSelectionMarker(1);
    pMode->subEntityTraits().setColor(nColor);
    curve.worldDraw(pMode);
}

void DrawDashedCurve(AcGiWorldDraw* pMode, const AcGePoint3dArray& points, Adesk::UInt16 nColor) {
    const CDashedScope dashed(pMode, nColor);
    AcDbSpline curve(points);
    curve.worldDraw(pMode);
}

void DrawCurveDots(const AcGePoint3dArray& points, Adesk::Int16 nPolylineMode, AcGiWorldDraw* pMode,
                   Adesk::UInt16 nColor) {
    AcDbPolyline dot(g_nDotVertices); // refilled for each point: a regeneration allocates nothing per point
    for (const AcGePoint3d& point : points) {
        dot.reset(Adesk::kTrue, g_nDotVertices);
        FillDot(dot, point);
        pMode->subEntityTraits().setColor(g_nDotColor);
        DrawPolylineByMode(nPolylineMode, pMode, dot);
        pMode->subEntityTraits().setColor(nColor);
    }
}

void AddSolidCurve(AcDbVoidPtrArray& entitySet, const AcGePoint3dArray& points, Adesk::UInt16 nColor) {
    auto pCurve = std::make_unique<AcDbSpline>(points);
    pCurve->setColorIndex(nColor);
    HandOver(entitySet, std::move(pCurve));
}

void AddDashedCurve(AcDbVoidPtrArray& entitySet, const AcGePoint3dArray& points) {
    auto pCurve = std::make_unique<AcDbSpline>(points);
    SetDashed(*pCurve);
    HandOver(entitySet, std::move(pCurve));
}

void AddCurveDots(const AcGePoint3dArray& points, AcDbVoidPtrArray& entitySet) {
    for (const AcGePoint3d& point : points) {
        auto pDot = std::make_unique<AcDbPolyline>(g_nDotVertices);
        FillDot(*pDot, point);
        pDot->setColorIndex(g_nDotColor);
        HandOver(entitySet, std::move(pDot));
    }
}
