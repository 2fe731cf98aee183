#pragma once
// A single triaxial reading and what it reduces to: from dial units and burette readings to strain, corrected
// area and deviator stress. It knows no chart, so that the data manager's window shows what a sheet shows.

#include "analysis/test_method.h"
#include "platform/acad/adesk.h"

/// Readings and effective stresses may lie this far below zero, not further.
inline constexpr double g_dLimit = -0.01;

/// One reading of one specimen, widened to double.
struct CTestReading {
    Adesk::Int32 m_nSJBH = 0; ///< specimen number
    double m_dWY = 0.0;       ///< cell pressure σ3, kPa
    double m_dSYGD = 0.0;     ///< specimen height H0, mm
    double m_dSYZJ = 0.0;     ///< specimen diameter D0, mm
    double m_dCLHXS = 0.0;    ///< proving ring coefficient C, N a dial unit
    double m_dGJKXYL = 0.0;   ///< pore pressure under the cell pressure, kPa; checked for sign only
    double m_dCLHDS = 0.0;    ///< proving ring reading R, dial units
    double m_dZXBX = 0.0;     ///< axial deformation ΔH, 0.01 mm
    double m_dJQPS = 0.0;     ///< water drained during shear ΔV, cm³
    double m_dKXYL = 0.0;     ///< pore pressure during shear u, kPa
    double m_dGJPS = 0.0;     ///< water drained in consolidation Vc, cm³; of either sign
    Adesk::Int8 m_nJLLX = 0;  ///< 0 curve point, 1 failure row, 2 both

    bool FeedsCircles() const { return m_nJLLX == 1 || m_nJLLX == 2; }
    bool FeedsCurve() const { return m_nJLLX == 0 || m_nJLLX == 2; }
    /// A value below -0.01 can't have been read off an instrument. Vc is left out: a burette may be set back.
    bool HasNegativeFault() const;
};

/// What one reading reduces to.
struct CReducedReading {
    double m_dStrain = 0.0;   ///< ε, a fraction
    double m_dDeviator = 0.0; ///< q, kPa, to two decimals
};

/// Strain and deviator stress of a reading. The area is corrected for the strain, and for consolidated tests
/// the specimen's volume for the drained water (parallel-cylinder correction; A. W. Bishop & D. J. Henkel,
/// The Measurement of Soil Properties in the Triaxial Test). Degenerate specimens give what the arithmetic
/// gives.
CReducedReading ReduceReading(const CTestReading& reading, CTestMethod method);
