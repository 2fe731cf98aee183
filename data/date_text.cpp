#include "data/date_text.h"

CString DateText(const CTime& day) {
    CString strDay;
    strDay.Format("%d.%d.%d", day.GetYear(), day.GetMonth(), day.GetDay());
    return strDay;
}
