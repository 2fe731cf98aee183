#pragma once

#include <span>
#include <vector>

#include "analysis/reading.h"

/// A reading as the plot shows it.
struct CCurvePoint {
    double m_dStrain = 0.0;   ///< axial, percent
    double m_dDeviator = 0.0; ///< kPa
    double m_dPore = 0.0;     ///< pore pressure, kPa
    bool m_bOnCurve = true;   ///< else a failure state beside it
    bool m_bFailure = false;  ///< feeds a Mohr circle
};

/// The readings under one cell pressure.
struct CSampleCurve {
    double m_dCellPressure = 0.0; ///< kPa
    std::vector<CCurvePoint> m_arPoints;
};

/// Reduces readings, in their order, to curves as a sheet has them: a new one begins where the cell pressure
/// changes, also to one that was there before. Readings that reduce to no finite numbers are left out.
std::vector<CSampleCurve> SampleCurves(std::span<const CTestReading> arReadings, CTestMethod method);

/// Whether pore pressure was measured at all.
bool HavePorePressure(std::span<const CSampleCurve> arCurves);
/// Whether any reading feeds a Mohr circle.
bool HaveFailureState(std::span<const CSampleCurve> arCurves);
