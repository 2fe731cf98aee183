#pragma once
// What moves of a chart. Its base is no part of it: nothing reads it once the panels are placed.

#include "chart/chart_entity.h"

#include <array>
#include <span>

using CChartPoint = AcGePoint3d CBRENChart::*;

/// In the order of the grips: the anchors of the panels and tables, the ends of the envelope lines, those of
/// the effective one last.
inline constexpr std::array<CChartPoint, 8> g_arChartPoints = {
    &CBRENChart::m_ptCurveOrigin,   &CBRENChart::m_ptMohrOrigin, &CBRENChart::m_ptTableOrigin,
    &CBRENChart::m_ptSummaryOrigin, &CBRENChart::m_ptEnvStart,   &CBRENChart::m_ptEnvEnd,
    &CBRENChart::m_ptEnvStartEff,   &CBRENChart::m_ptEnvEndEff,
};

/// The ends of both envelope lines, whether or not the chart has an effective set.
inline constexpr std::span<const CChartPoint> g_arEnvelopeEnds = std::span(g_arChartPoints).subspan<4>();

/// Those that the chart's method knows: without an effective set its envelope's ends are left out.
inline std::span<const CChartPoint> OwnPoints(const CBRENChart& chart) {
    return std::span(g_arChartPoints).first(chart.HasEffectiveSet() ? 8 : 6);
}
