#pragma once

#include "platform/mfc/string.h"

/// A number with up to nDigits significant digits, as the C runtime's _gcvt writes it: in decimal from 0.1 on
/// as long as the digits reach to the point, else with an exponent; zeros at the end are left out, the point
/// before them stays ("1.5", "2.", "3.e-05").
CString Gcvt(double dValue, int nDigits);
