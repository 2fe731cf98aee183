#pragma once
// A reading for tests of its reduction.

#include "analysis/reading.h"

/// A sound reading: 39.1 mm by 80 mm, 100 divisions of 2 N, 8 mm of deformation.
inline CTestReading Reading(double dWY = 100.0, Adesk::Int8 nJLLX = 0, Adesk::Int32 nSJBH = 1) {
    CTestReading r;
    r.m_nSJBH = nSJBH;
    r.m_dWY = dWY;
    r.m_dSYGD = 80.0;
    r.m_dSYZJ = 39.1;
    r.m_dCLHXS = 2.0;
    r.m_dCLHDS = 100.0;
    r.m_dZXBX = 800.0;
    r.m_nJLLX = nJLLX;
    return r;
}
