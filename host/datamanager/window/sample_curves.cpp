#include "host/datamanager/window/sample_curves.h"

#include <algorithm>
#include <cmath>

namespace {

template <class Holds>
bool AnyPoint(std::span<const CSampleCurve> arCurves, Holds holds) {
    return std::ranges::any_of(
        arCurves, [&](const CSampleCurve& curve) { return std::ranges::any_of(curve.m_arPoints, holds); });
}

} // namespace

std::vector<CSampleCurve> SampleCurves(std::span<const CTestReading> arReadings, CTestMethod method) {
    std::vector<CSampleCurve> arCurves;
    for (const CTestReading& reading : arReadings) {
        const CReducedReading reduced = ReduceReading(reading, method);
        if (!std::isfinite(reduced.m_dStrain) || !std::isfinite(reduced.m_dDeviator)) continue;
        if (arCurves.empty() || arCurves.back().m_dCellPressure != reading.m_dWY)
            arCurves.push_back({reading.m_dWY, {}});
        arCurves.back().m_arPoints.push_back({reduced.m_dStrain * 100.0, reduced.m_dDeviator, reading.m_dKXYL,
                                              reading.FeedsCurve(), reading.FeedsCircles()});
    }
    return arCurves;
}

bool HavePorePressure(std::span<const CSampleCurve> arCurves) {
    return AnyPoint(arCurves, [](const CCurvePoint& point) { return point.m_dPore != 0.0; });
}

bool HaveFailureState(std::span<const CSampleCurve> arCurves) {
    return AnyPoint(arCurves, [](const CCurvePoint& point) { return point.m_bFailure; });
}
