#include "analysis/reading.h"

#include "analysis/numbers.h"

#include <cmath>

namespace {
/// Volume of water in cm³ over area in cm² gives mm of height by this factor; kN/m² from N over cm² likewise.
constexpr double g_dTen = 10.0;

struct CSpecimen {
    double m_dArea0;  // cm²
    double m_dShrink; // k: the part of the volume that consolidation left
    double m_dHeight; // consolidated height, mm
};

CSpecimen Consolidated(const CTestReading& reading, double dArea0) {
    CSpecimen specimen{};
    specimen.m_dArea0 = dArea0;
    specimen.m_dShrink = 1.0 - g_dTen * reading.m_dGJPS / (dArea0 * reading.m_dSYGD);
    specimen.m_dHeight = reading.m_dSYGD * std::pow(specimen.m_dShrink, 0.3333333333333333);
    return specimen;
}
} // namespace

bool CTestReading::HasNegativeFault() const {
    const double checked[] = {m_dSYGD, m_dSYZJ, m_dCLHXS, m_dWY,    m_dCLHDS,
                              m_dZXBX, m_dJQPS, m_dKXYL,  m_dGJKXYL};
    for (const double dValue : checked)
        if (dValue < g_dLimit) return true;
    return false;
}

CReducedReading ReduceReading(const CTestReading& reading, CTestMethod method) {
    const double dArea0 = g_dPi * reading.m_dSYZJ * reading.m_dSYZJ / 400.0;
    const double dForce = reading.m_dCLHXS * reading.m_dCLHDS;

    CReducedReading reduced;
    double dArea = 0.0;
    if (method == CTestMethod::UU) {
        reduced.m_dStrain = reading.m_dZXBX / (100.0 * reading.m_dSYGD);
        dArea = dArea0 / (1.0 - reduced.m_dStrain);
    } else {
        const CSpecimen specimen = Consolidated(reading, dArea0);
        reduced.m_dStrain = reading.m_dZXBX / (100.0 * specimen.m_dHeight);
        if (method == CTestMethod::CU)
            dArea = dArea0 * std::pow(specimen.m_dShrink, 0.6666666666666666) / (1.0 - reduced.m_dStrain);
        else
            dArea = (dArea0 * reading.m_dSYGD - g_dTen * reading.m_dGJPS - g_dTen * reading.m_dJQPS) /
                    (specimen.m_dHeight - reading.m_dZXBX / 100.0);
    }
    reduced.m_dDeviator = RoundToTwoDecimals(g_dTen * dForce / dArea);
    return reduced;
}
