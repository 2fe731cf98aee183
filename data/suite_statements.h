#pragma once

#include "platform/mfc/string.h"

// Statements on the suite's common and configuration tables, which are read by free queries. Texts given are
// quoted here.

/// The function name under which the suite's tables know this module's chart.
extern const char* const g_pszChartFunction;

/// Names and dates of the people of a drawing class.
CString PeopleQuery(const CString& strDrawingClass);
/// The drawing classes that people are kept for.
CString DrawingClassesQuery();
/// File name and folder of the frame template of a function.
CString FrameTemplateQuery(const CString& strFunction);
/// Makes a file the frame template of a function.
CString SetFrameTemplateStatement(const CString& strFile, const CString& strFunction);
/// The title block's fields, but for those that come from no table.
CString TitleFieldsQuery();
