#include "data/ado_value.h"

#include "analysis/numbers.h"
#include "data/gcvt.h"
#include "platform/windows/code_page.h"

namespace {

constexpr int g_nSingleDigits = 10;
constexpr int g_nDoubleDigits = 20;

CString WholeText(long long nValue) {
    CString strText;
    strText.Format("%lld", nValue);
    return strText;
}

} // namespace

double DoubleOfValue(const CVariant& value) {
    switch (value.Type()) {
    case VT_EMPTY:
    case VT_NULL:
        return 0.0;
    case VT_I2:
    case VT_UI1:
        return value.I2();
    case VT_I4:
    case VT_INT:
        return value.I4();
    case VT_R4:
        return value.R4();
    case VT_DECIMAL:
        return DecimalNumber(value.Decimal());
    default:
        return value.R8();
    }
}

int IntOfValue(const CVariant& value) {
    switch (value.Type()) {
    case VT_EMPTY:
    case VT_NULL:
        return 0;
    case VT_I2:
    case VT_UI1:
    case VT_BOOL:
        return value.I2();
    case VT_R4:
    case VT_R8:
    case VT_DECIMAL:
        return TruncateToInt32(DoubleOfValue(value));
    default:
        return value.I4();
    }
}

int TextOfValue(const CVariant& value, CString* pText) {
    pText->Empty();
    switch (value.Type()) {
    case VT_EMPTY:
    case VT_NULL:
        return 1;
    case VT_I2:
    case VT_UI1:
        *pText = WholeText(value.I2());
        return 1;
    case VT_I4:
    case VT_INT:
        *pText = WholeText(value.I4());
        return 1;
    case VT_UI4:
        *pText = WholeText(value.UI4());
        return 1;
    case VT_R4:
        *pText = Gcvt(value.R4(), g_nSingleDigits);
        return 1;
    case VT_R8:
    case VT_DECIMAL:
        *pText = Gcvt(DoubleOfValue(value), g_nDoubleDigits);
        return 1;
    case VT_BSTR:
        *pText = GbkFromWide(value.Text());
        return 1;
    default:
        return 0;
    }
}

bool IsRealType(VARTYPE vt) {
    return vt == VT_R4 || vt == VT_R8 || vt == VT_DECIMAL;
}
