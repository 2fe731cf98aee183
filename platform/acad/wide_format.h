#pragma once
// Formatting of wide text, as the platform's printing functions do it.

#include "platform/acad/adesk.h"

#include <cstdarg>
#include <string>

/// %s, %c take wide text and a wide character, %hs and %S GBK text; d i u x X o, c, f F e E g G, p and %%
/// with flags, width, precision (both also as *) and the sizes h l ll I64 z. A point is the decimal sign, a
/// number that is none gives "nan", never "-nan"; a null text gives "(null)". From an unknown conversion on
/// the format is taken as it stands, since nobody knows what its argument is.
std::wstring FormatWideV(const ACHAR* format, std::va_list arguments);
