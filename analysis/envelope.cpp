// The envelope line on the Mohr panel: from strength values to its end points and back.

#include "analysis/numbers.h"
#include "chart/chart_entity.h"

#include <cmath>

void CBRENChart::FitEnvelopeLine(AcGePoint3d& ptStart, AcGePoint3d& ptEnd, double dPhi, double dC) const {
    const double dIntercept = dC / m_dMohrStepY * m_nMohrCellH;
    ptStart = m_ptMohrOrigin;
    ptEnd = m_ptMohrOrigin;
    ptStart.y += dIntercept;

    const double dWidth = m_dMaxSigma1 / m_dMohrStepX * m_nMohrCellW;
    const double dHeight = dWidth * std::tan(dPhi);
    const double dLimit = (m_nMohrRows - 0.2) * m_nMohrCellH;
    double dRise = dHeight;
    if (dHeight + dIntercept > dLimit) {
        dRise = dLimit - dIntercept;
        ptEnd.x += dRise / std::tan(dPhi);
    } else {
        ptEnd.x += dWidth;
    }
    ptEnd.y += dRise + dIntercept;
}

namespace {
/// Angle of the line on the drawing, in degrees. It is the soil's because a cell stands for equal stresses
/// both ways.
double AngleOf(const AcGePoint3d& ptStart, const AcGePoint3d& ptEnd) {
    return std::atan2(ptEnd.y - ptStart.y, ptEnd.x - ptStart.x) / g_dPi * 180.0;
}

/// Height above the origin where the line, however short, meets the τ axis; drawing units.
double InterceptOf(const AcGePoint3d& ptStart, const AcGePoint3d& ptEnd, const AcGePoint3d& ptOrigin) {
    return ptStart.y - ptOrigin.y - (ptStart.x - ptOrigin.x) * (ptEnd.y - ptStart.y) / (ptEnd.x - ptStart.x);
}
} // namespace

void CBRENChart::ReadEnvelopeValues() {
    m_dGraphPhi = AngleOf(m_ptEnvStart, m_ptEnvEnd);
    m_dGraphC = InterceptOf(m_ptEnvStart, m_ptEnvEnd, m_ptMohrOrigin) / m_nMohrCellH * m_dMohrStepY;
    if (!HasEffectiveSet()) return;
    m_dGraphPhiEff = AngleOf(m_ptEnvStartEff, m_ptEnvEndEff);
    m_dGraphCEff = InterceptOf(m_ptEnvStartEff, m_ptEnvEndEff, m_ptMohrOrigin) / m_nMohrCellH * m_dMohrStepY;
}
