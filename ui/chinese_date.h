#pragma once
// Days as the annotation page's settings hold them: "2024年3月9日".

#include "platform/mfc/string.h"
#include "platform/mfc/time.h"

CString ChineseDate(const CTime& day);

/// 0, and the numbers stay, when the text lacks a mark of year, month or day. The numbers are what stands
/// before the year's mark, behind it, and behind the month's; 0 for what is no number.
int ParseChineseDate(const CString& strText, int* pnYear, int* pnMonth, int* pnDay);
