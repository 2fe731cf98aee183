#pragma once

#include <QtCore/QString>

/// Ticks of an axis at round numbers: 1, 2 or 5 times a power of ten apart.
struct CAxisTicks {
    double m_dFirst = 0.0; ///< a multiple of the step
    double m_dStep = 1.0;
    int m_nCount = 2;
    int m_nDecimals = 0; ///< that a label needs

    [[nodiscard]] double Value(int nTick) const { return m_dFirst + nTick * m_dStep; }
    [[nodiscard]] double Last() const { return Value(m_nCount - 1); }
    [[nodiscard]] QString Label(int nTick) const;
};

/// The ticks that enclose [dLowest, dHighest], finite both, in about nSteps steps and never more than two
/// above.
CAxisTicks RoundTicks(double dLowest, double dHighest, int nSteps);
