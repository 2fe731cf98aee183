#include "data/gcvt.h"

#include <cmath>
#include <cstdlib>

namespace {

/// The power of ten of the first digit that is not 0; -1 for 0.
int DecimalExponent(double dValue) {
    if (dValue == 0.0) return -1;
    CString strText;
    strText.Format("%.16e", dValue); // 17 digits tell all doubles apart, so none is rounded up to a power
    return std::atoi(strText.Mid(strText.Find('e') + 1));
}

CString WithoutEndingZeros(const CString& strText) {
    if (strText.Find('.') < 0) return strText;
    CString strDigits = strText.SpanExcluding("e");
    const CString strExponent = strText.Mid(strDigits.GetLength());
    return strDigits.TrimRight('0') + strExponent;
}

} // namespace

CString Gcvt(double dValue, int nDigits) {
    CString strText;
    if (!std::isfinite(dValue)) {
        strText.Format("%g", dValue);
        return strText;
    }
    const int nExponent = DecimalExponent(dValue);
    if (nExponent < -1 || nExponent >= nDigits)
        strText.Format("%.*e", nDigits - 1, dValue);
    else
        strText.Format("%.*f", nDigits - 1 - nExponent, dValue);
    return WithoutEndingZeros(strText);
}
