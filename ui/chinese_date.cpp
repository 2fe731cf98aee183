#include "ui/chinese_date.h"

#include <cstdlib>

namespace {

constexpr int g_nMark = 2; // bytes

} // namespace

CString ChineseDate(const CTime& day) {
    CString strDay;
    strDay.Format("%d年%d月%d日", day.GetYear(), day.GetMonth(), day.GetDay());
    return strDay;
}

int ParseChineseDate(const CString& strText, int* pnYear, int* pnMonth, int* pnDay) {
    const int nYearMark = strText.Find("年"), nMonthMark = strText.Find("月");
    if (nYearMark < 0 || nMonthMark < 0 || strText.Find("日") < 0) return 0;
    *pnYear = std::atoi(strText.Left(nYearMark));
    *pnMonth = std::atoi(strText.Mid(nYearMark + g_nMark));
    *pnDay = std::atoi(strText.Mid(nMonthMark + g_nMark));
    return 1;
}
