#pragma once
// A chart with each of its points in a place of its own, for tests of what moves.

#include "chart/chart_entity.h"

#include <array>
#include <vector>

using CXyz = std::array<double, 3>;

inline CXyz Xyz(const AcGePoint3d& point) {
    return {point.x, point.y, point.z};
}

/// In declared order: the base, the anchors, the ends of the lines.
inline constexpr std::array g_arPlacedPoints = {
    &CBRENChart::m_ptBase,        &CBRENChart::m_ptCurveOrigin,   &CBRENChart::m_ptMohrOrigin,
    &CBRENChart::m_ptTableOrigin, &CBRENChart::m_ptSummaryOrigin, &CBRENChart::m_ptEnvStart,
    &CBRENChart::m_ptEnvEnd,      &CBRENChart::m_ptEnvStartEff,   &CBRENChart::m_ptEnvEndEff};

/// The i-th point, from 1, is (i, 100 i, 0.5).
inline void PlacePoints(CBRENChart& chart) {
    double dPlace = 0.0;
    for (const auto pPoint : g_arPlacedPoints) {
        dPlace += 1.0;
        (chart.*pPoint).set(dPlace, 100.0 * dPlace, 0.5);
    }
}

/// How often each point of a placed chart was moved by an offset of whole numbers; -1 when it lies elsewhere.
inline std::vector<int> TimesMoved(const CBRENChart& chart, const AcGeVector3d& offset) {
    CBRENChart placed;
    PlacePoints(placed);
    std::vector<int> times;
    for (const auto pPoint : g_arPlacedPoints) {
        const AcGePoint3d &from = placed.*pPoint, &to = chart.*pPoint;
        const int nTimes = static_cast<int>((to.x - from.x) / offset.x);
        times.push_back(Xyz(to) == Xyz(from + offset * nTimes) ? nTimes : -1);
    }
    return times;
}
