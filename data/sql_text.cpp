#include "data/sql_text.h"

CString SqlText(const CString& strValue) {
    CString strText = strValue;
    strText.Replace("'", "''");
    return strText;
}
