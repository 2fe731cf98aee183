#pragma once
// A text style's font by name. It has no place in the records of files: it stands in extended data of the
// application "ACAD", as the typeface and a number with its traits.

#include "platform/acad/db_tables.h"
#include "platform/acad/db_xdata.h"

inline constexpr const ACHAR* g_szTypefaceApp = L"ACAD";

/// The values for a style's font; none for a style that has no font by name.
std::vector<CXDataItem> TypefaceItems(const AcDbTextStyleTableRecord& style);

/// Gives a style the font that the values tell. False, and the style stays as it was, when they tell none.
bool GiveTypeface(AcDbTextStyleTableRecord& style, const std::vector<CXDataItem>& items);
