// The Mohr panel: half circles of total and, for consolidated undrained tests, of effective stress, and the
// envelopes.

#include "chart/chart_entity.h"
#include "drawing/world_sink.h"

#include <algorithm>

namespace {
struct CPlacedCircle {
    AcGePoint3d m_ptCenter;
    double m_dRadius;
};

/// Both coordinates take the σ scale: the circle is round because τ per cell equals σ per cell.
CPlacedCircle PlaceCircle(const CBRENChart& chart, double dSigma3, double dDeviator) {
    const double dRadius = dDeviator / 2.0;
    return {{chart.m_ptMohrOrigin.x + ((dSigma3 + dRadius) / chart.m_dMohrStepX) * chart.m_nMohrCellW,
             chart.m_ptMohrOrigin.y, 0.0},
            (dRadius / chart.m_dMohrStepX) * chart.m_nMohrCellW};
}
} // namespace

void CBRENChart::DescribeMohrCircles(CPictureSink& sink) const {
    const int nTotal = std::min(m_arSigma3.length(), m_arDeviator.length());
    for (int i = 0; i < nTotal; i++) {
        const CPlacedCircle circle = PlaceCircle(*this, m_arSigma3[i], m_arDeviator[i]);
        sink.HalfCircle(circle.m_ptCenter, circle.m_dRadius);
    }
    if (!HasEffectiveSet()) return;
    const int nEffective = std::min(m_arSigma3Eff.length(), m_arDeviatorEff.length());
    for (int i = 0; i < nEffective; i++) {
        const CPlacedCircle circle = PlaceCircle(*this, m_arSigma3Eff[i], m_arDeviatorEff[i]);
        sink.DashedHalfCircle(circle.m_ptCenter, circle.m_dRadius);
    }
}

void CBRENChart::DescribeEnvelope(CPictureSink& sink) const {
    sink.LineInChartColour(m_ptEnvStart, m_ptEnvEnd);
    if (HasEffectiveSet()) sink.DashedLine(m_ptEnvStartEff, m_ptEnvEndEff);
}

void CBRENChart::DrawMohrCircles(AcGiWorldDraw* pMode) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeMohrCircles(sink);
}

void CBRENChart::DrawEnvelope(AcGiWorldDraw* pMode) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeEnvelope(sink);
}
