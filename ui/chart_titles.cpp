#include "ui/chart_titles.h"

namespace {

constexpr int g_nPrefix = 2; // "BR"

} // namespace

int MatchBorehole(const CString& strZKBH, const CString& strTitle) {
    return strTitle.Find(strZKBH + "-") == g_nPrefix;
}

CString DisplayName(const CString& strTitle) {
    CString strName = strTitle.Mid(g_nPrefix);
    strName.Replace("~", "和");
    return "试样" + strName;
}
