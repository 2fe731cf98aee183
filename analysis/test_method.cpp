#include "analysis/test_method.h"

CTestMethod TestMethodOf(const CString& strSYFF) {
    if (strSYFF == g_pMethodUU) return CTestMethod::UU;
    if (strSYFF == g_pMethodCU) return CTestMethod::CU;
    if (strSYFF == g_pMethodCD) return CTestMethod::CD;
    return CTestMethod::None;
}
