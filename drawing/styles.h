#pragma once
// Text styles on which the chart's look rests.

#include "platform/acad/db_database.h"
#include "platform/acad/gi_text_style.h"
#include "platform/mfc/string.h"

/// The one style of the world form, shared by chart and frame. Its size is whatever the last user set: every
/// routine sets the size it needs before it draws.
extern AcGiTextStyle g_ChartTextStyle;

/// Name of the text style that texts of chart and frame have in a drawing, and of its section in the ini.
inline constexpr const char* g_pSheetTextStyle = "QM_PMT_BTFont";

/// The look of the chart's texts: upright "仿宋_GB2312", size 2.5, set with 80 percent of its advance widths.
void SetupChartTextStyle(AcGiTextStyle& style);
/// The same look for the heading of a sheet, which has a style of its own.
void SetupHeadingTextStyle(AcGiTextStyle& style);

/// Makes the text style of that name in the drawing's table from the section of that name in the settings
/// ini, or brings an existing one up to date, and makes it current. A null database is the working one.
/// Returns 1.
int CreateTextStyleFromIni(const CString& strName, AcDbObjectId& idStyle, AcDbDatabase* pDatabase);

/// Makes the text style of that name from two shape-font files, unless the drawing has one of the name, and
/// makes it current. 1, or 0 after a message when the host finds one of the files nowhere.
int CreateShxTextStyle(const CString& strName, const CString& strFontFile, const CString& strBigFontFile,
                       AcDbDatabase* pDatabase, AcDbObjectId& idStyle);

/// Makes the text style g_pSheetTextStyle in the working drawing after the look of a world form's
/// style, unless the drawing has it. 1 with the id when it is there afterwards.
int AddBannerTextStyle(const AcGiTextStyle& style, AcDbObjectId& idStyle);

/// Makes the text style of that name by a font in the working drawing, or brings the one there up to it;
/// copies it into another database if one is given, and makes it current there. dOblique in radians. 1 on
/// success.
int ImportTextStyle(const CString& strName, const CString& strFont, double dSize, double dWidthFactor,
                    double dOblique, AcDbDatabase* pDatabase);
