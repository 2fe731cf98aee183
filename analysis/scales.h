#pragma once
// The values that a cell of the panels' grids stands for.

#include "platform/acad/adesk.h"

/// Values per cell of the two panels, and rows of the Mohr grid.
struct CPanelScales {
    double m_dStrainStep = 0.0;   ///< percent
    double m_dDeviatorStep = 0.0; ///< kPa
    double m_dSigmaStep = 0.0;    ///< kPa; of τ as well, so that circles stay round
    Adesk::Int32 m_nMohrRows = 0;
};

/// The first list value whose grid holds the greatest value strictly; the last one if none does. Strain in
/// percent, stresses in kPa.
CPanelScales ChooseScales(double dMaxStrainPercent, double dMaxDeviator, double dMaxSigma1, double dMaxTau);
