// The Mohr panel: half circles of total and, for consolidated undrained tests, of effective stress, and the
// envelopes.

#include "chart/chart_entity.h"
#include "chart/finite.h"
#include "drawing/explode_sink.h"
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

using CCircleStroke = void (CPictureSink::*)(const AcGePoint3d&, double);

void Circles(CPictureSink& sink, CCircleStroke pStroke, const CBRENChart& chart, const CDoubleList& sigma3,
             const CDoubleList& deviator) {
    const int nCircles = std::min(sigma3.length(), deviator.length());
    for (int i = 0; i < nCircles; i++) {
        const CPlacedCircle circle = PlaceCircle(chart, sigma3[i], deviator[i]);
        if (IsFinite(circle.m_ptCenter) && std::isfinite(circle.m_dRadius))
            (sink.*pStroke)(circle.m_ptCenter, circle.m_dRadius);
    }
}

using CLineStroke = void (CPictureSink::*)(const AcGePoint3d&, const AcGePoint3d&);

/// A fitted line may end nowhere: one without slope does, above the grid.
void Envelope(CPictureSink& sink, CLineStroke pStroke, const AcGePoint3d& ptStart, const AcGePoint3d& ptEnd) {
    if (IsFinite(ptStart) && IsFinite(ptEnd)) (sink.*pStroke)(ptStart, ptEnd);
}
} // namespace

void CBRENChart::DescribeMohrCircles(CPictureSink& sink) const {
    Circles(sink, &CPictureSink::HalfCircle, *this, m_arSigma3, m_arDeviator);
    if (HasEffectiveSet())
        Circles(sink, &CPictureSink::DashedHalfCircle, *this, m_arSigma3Eff, m_arDeviatorEff);
}

void CBRENChart::DescribeEnvelope(CPictureSink& sink) const {
    Envelope(sink, &CPictureSink::LineInChartColour, m_ptEnvStart, m_ptEnvEnd);
    if (HasEffectiveSet()) Envelope(sink, &CPictureSink::DashedLine, m_ptEnvStartEff, m_ptEnvEndEff);
}

void CBRENChart::DrawMohrCircles(AcGiWorldDraw* pMode) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeMohrCircles(sink);
}

void CBRENChart::ExplodeMohrCircles(AcDbVoidPtrArray& entitySet) const {
    CExplodeSink sink(entitySet, m_nColor, m_idTextStyle);
    DescribeMohrCircles(sink);
}

void CBRENChart::DrawEnvelope(AcGiWorldDraw* pMode) const {
    CWorldSink sink(pMode, m_nPolylineMode, m_nColor);
    DescribeEnvelope(sink);
}

void CBRENChart::ExplodeEnvelope(AcDbVoidPtrArray& entitySet) const {
    CExplodeSink sink(entitySet, m_nColor, m_idTextStyle);
    DescribeEnvelope(sink);
}
