#pragma once

#include "platform/ado/variant.h"
#include "platform/mfc/string.h"

// Values of columns and parameters as plain ones.

/// Whole numbers, reals and decimals as they are; 0 for NULL and for nothing. Of any other type it is what
/// the value's eight bytes are as a real number, so it means nothing.
double DoubleOfValue(const CVariant& value);

/// The same as a whole number, reals cut toward zero. Of any other type it is what the value's low four
/// bytes are.
int IntOfValue(const CVariant& value);

/// Whole numbers in decimal, reals with 10 (single) or 20 significant digits (see Gcvt), texts in the code
/// page, an empty text for NULL: 1. Other types, dates and truth values among them, have none: 0 and an
/// empty text.
int TextOfValue(const CVariant& value, CString* pText);

/// Whether the type is one of real numbers: single, double or decimal.
bool IsRealType(VARTYPE vt);
