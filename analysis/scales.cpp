#include "analysis/scales.h"

#include "analysis/numbers.h"

#include <span>

namespace {
constexpr double g_strainSteps[] = {0.1, 0.25, 0.5, 1, 2, 2.5, 5, 10, 15};
constexpr double g_deviatorSteps[] = {10,   20,   30,    50,    100,   200,    250,    500,    1000,
                                      2000, 5000, 10000, 20000, 50000, 100000, 200000, 500000, 1000000};
constexpr double g_sigmaSteps[] = {10,   20,   30,    50,    100,   200,    250,    250,    500,    1000,
                                   2000, 5000, 10000, 20000, 50000, 100000, 200000, 500000, 1000000};

double FirstStep(std::span<const double> steps, double dGreatest, double dCells) {
    for (const double dStep : steps)
        if (dGreatest < dStep * dCells) return dStep;
    return steps.back();
}
} // namespace

CPanelScales ChooseScales(double dMaxStrainPercent, double dMaxDeviator, double dMaxSigma1, double dMaxTau) {
    CPanelScales scales;
    scales.m_dStrainStep = FirstStep(g_strainSteps, dMaxStrainPercent, 8.0);
    scales.m_dDeviatorStep = FirstStep(g_deviatorSteps, dMaxDeviator, 8.0);
    scales.m_dSigmaStep = FirstStep(g_sigmaSteps, dMaxSigma1, 9.7);

    // One row of air above the greatest circle, and one more where it would come near the top.
    const double dRows = dMaxTau / scales.m_dSigmaStep;
    const Adesk::Int32 nWhole = TruncateToInt32(dRows);
    scales.m_nMohrRows = nWhole + (dRows - nWhole <= 0.7 ? 2 : 3);
    return scales;
}
