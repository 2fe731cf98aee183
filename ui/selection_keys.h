#pragma once
// Where the marks of the running project stand in the marks file.

#include "platform/mfc/string.h"

inline constexpr const char* g_pMarksSection = "CBRENDlg";

/// Key of the boreholes all of whose samples have charts.
CString BoreholeMarksKey();
/// Key of the samples of a borehole that have charts.
CString SampleMarksKey(const CString& strZKBH);
