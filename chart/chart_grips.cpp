// The chart's grips: the anchors of its panels and tables, then the ends of the envelope lines.

#include "chart/chart_points.h"
#include "chart/table_sizes.h"

namespace {
constexpr int g_nMohrGrip = 1, g_nTableGrip = 2, g_nSummaryGrip = 3, g_nFirstEnvelopeGrip = 4;
} // namespace

Acad::ErrorStatus CBRENChart::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                               AcDbIntArray&) const {
    assertReadEnabled();
    const int nFirst = gripPoints.length();
    for (const CChartPoint pPoint : OwnPoints(*this))
        gripPoints.append(this->*pPoint);
    // A table hangs from its anchor; its grip stands at its foot.
    gripPoints[nFirst + g_nTableGrip].y -= StressTableHeight(HasEffectiveSet());
    gripPoints[nFirst + g_nSummaryGrip].y -= SummaryTableHeight(HasEffectiveSet());
    return Acad::eOk;
}

Acad::ErrorStatus CBRENChart::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled(1, 1);
    const std::span<const CChartPoint> points = OwnPoints(*this);
    for (const int nIndex : indices) {
        if (nIndex < 0 || nIndex >= static_cast<int>(points.size())) continue;
        this->*points[static_cast<std::size_t>(nIndex)] += offset;
        if (nIndex == g_nMohrGrip)
            for (const CChartPoint pEnd : g_arEnvelopeEnds) // the effective ones of any method
                this->*pEnd += offset;
        if (nIndex >= g_nFirstEnvelopeGrip) g_bChartDataChanged = 1;
    }
    return Acad::eOk;
}
