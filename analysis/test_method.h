#pragma once

#include "platform/mfc/string.h"

/// How a sample was sheared.
enum class CTestMethod {
    None, ///< a text that names no method
    UU,   ///< unconsolidated undrained
    CU,   ///< consolidated undrained: the one method with a second, effective-stress set of results
    CD,   ///< consolidated drained
};

inline constexpr const char* g_pMethodUU = "不固结不排水剪";
inline constexpr const char* g_pMethodCU = "固结不排水剪";
inline constexpr const char* g_pMethodCD = "固结排水剪";

/// The method a text names, by exact equality.
CTestMethod TestMethodOf(const CString& strSYFF);
