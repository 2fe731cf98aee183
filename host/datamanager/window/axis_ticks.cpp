#include "host/datamanager/window/axis_ticks.h"

#include <algorithm>
#include <cmath>

QString CAxisTicks::Label(int nTick) const {
    // The multiple of the step that is meant, so that no tick reads -0 or 0.30000000000000004.
    const double dValue = std::round(Value(nTick) / m_dStep) * m_dStep;
    return QString::number(dValue == 0.0 ? 0.0 : dValue, 'f', m_nDecimals);
}

CAxisTicks RoundTicks(double dLowest, double dHighest, int nSteps) {
    if (!(dHighest > dLowest)) dHighest = dLowest + 1.0;
    const double dRaw = (dHighest - dLowest) / nSteps;
    const double dExponent = std::floor(std::log10(dRaw));
    const double dPower = std::pow(10.0, dExponent);
    CAxisTicks ticks;
    ticks.m_dStep = 10.0 * dPower;
    for (const double dFactor : {5.0, 2.0, 1.0})
        if (dFactor * dPower >= dRaw * (1.0 - 1e-9)) ticks.m_dStep = dFactor * dPower;
    const double dFirst = std::floor(dLowest / ticks.m_dStep + 1e-9);
    const double dLast = std::ceil(dHighest / ticks.m_dStep - 1e-9);
    ticks.m_dFirst = dFirst * ticks.m_dStep;
    ticks.m_nCount = static_cast<int>(dLast - dFirst) + 1;
    ticks.m_nDecimals = std::max(0, -static_cast<int>(std::floor(std::log10(ticks.m_dStep) + 1e-9)));
    return ticks;
}
