#pragma once
// The fixed constants and roundings of the suite's arithmetic: results stored by one edition must come out of
// every other edition to the last digit, so they are part of the method.

#include "platform/acad/adesk.h"

/// π and π/2 as the suite has always had them, not to full precision.
inline constexpr double g_dPi = 3.1415926;
inline constexpr double g_dHalfPi = 1.5707963;

/// The value rounded through its text with two decimals, as it is printed and read back.
double RoundToTwoDecimals(double dValue);

/// The value cut toward zero to two decimals; the cut is one to 32 bits, see below.
double CutToTwoDecimals(double dValue);

/// The value cut toward zero to 32 bits; -2147483648 for what is no number or out of range.
Adesk::Int32 TruncateToInt32(double dValue);
