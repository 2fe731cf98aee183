#include "platform/ado/sqlite_functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "platform/ado/dialect_numbers.h"
#include "platform/ado/sql_dialect.h"

namespace {

using CArguments = sqlite3_value**;

/// No text longer than this is made by string(n, ch).
constexpr std::int64_t g_nLongestFill = 65535;

std::string_view Text(sqlite3_value* pValue) {
    const auto* pText = reinterpret_cast<const char*>(sqlite3_value_text(pValue));
    return pText ? std::string_view(pText, static_cast<std::size_t>(sqlite3_value_bytes(pValue)))
                 : std::string_view();
}

bool IsNull(sqlite3_value* pValue) {
    return sqlite3_value_type(pValue) == SQLITE_NULL;
}

void GiveText(sqlite3_context* pContext, std::string_view strText) {
    sqlite3_result_text64(pContext, strText.data(), strText.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The bytes of the first nCount characters.
std::size_t BytesOf(std::string_view strText, std::int64_t nCount) {
    std::size_t nAt = 0;
    for (; nAt < strText.size(); ++nAt)
        if (!IsContinuation(strText[nAt]) && nCount-- == 0) break;
    return nAt;
}

void IsNumeric(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    const int nType = sqlite3_value_type(arArguments[0]);
    const bool bNumber = nType == SQLITE_INTEGER || nType == SQLITE_FLOAT;
    sqlite3_result_int(pContext, bNumber || IsNumericText(Text(arArguments[0])) ? -1 : 0);
}

void Left(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    if (IsNull(arArguments[0]) || IsNull(arArguments[1])) return;
    const std::string_view strText = Text(arArguments[0]);
    const std::int64_t nCount = std::max<std::int64_t>(sqlite3_value_int64(arArguments[1]), 0);
    GiveText(pContext, strText.substr(0, BytesOf(strText, nCount)));
}

void Val(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    if (!IsNull(arArguments[0])) sqlite3_result_double(pContext, LeadingNumber(Text(arArguments[0])));
}

void String(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    if (IsNull(arArguments[0]) || IsNull(arArguments[1])) return;
    const std::string_view strFill = Text(arArguments[1]);
    const std::string_view strOne = strFill.substr(0, BytesOf(strFill, 1));
    const auto nCount = static_cast<std::size_t>(
        std::clamp<std::int64_t>(sqlite3_value_int64(arArguments[0]), 0, g_nLongestFill));
    std::string strText;
    strText.reserve(nCount * strOne.size());
    for (std::size_t i = 0; i < nCount; ++i)
        strText += strOne;
    GiveText(pContext, strText);
}

void Len(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    if (IsNull(arArguments[0])) return;
    const std::string_view strText = Text(arArguments[0]);
    sqlite3_result_int64(
        pContext, std::count_if(strText.begin(), strText.end(), [](char c) { return !IsContinuation(c); }));
}

void Add(sqlite3_context* pContext, int /*nArguments*/, CArguments arArguments) {
    if (IsNull(arArguments[0]) || IsNull(arArguments[1])) return;
    const auto isNumber = [](int nType) { return nType == SQLITE_INTEGER || nType == SQLITE_FLOAT; };
    const int nLeft = sqlite3_value_type(arArguments[0]);
    const int nRight = sqlite3_value_type(arArguments[1]);
    if (!isNumber(nLeft) || !isNumber(nRight)) {
        std::string strText(Text(arArguments[0]));
        GiveText(pContext, strText.append(Text(arArguments[1])));
        return;
    }
    std::int64_t nSum = 0;
    const bool bWhole = nLeft == SQLITE_INTEGER && nRight == SQLITE_INTEGER;
    if (bWhole && !__builtin_add_overflow(sqlite3_value_int64(arArguments[0]),
                                          sqlite3_value_int64(arArguments[1]), &nSum))
        sqlite3_result_int64(pContext, nSum);
    else
        sqlite3_result_double(pContext,
                              sqlite3_value_double(arArguments[0]) + sqlite3_value_double(arArguments[1]));
}

using CFunction = void (*)(sqlite3_context*, int, CArguments);

/// The engine is C: no exception may pass through it.
template <CFunction function>
void Guarded(sqlite3_context* pContext, int nArguments, CArguments arArguments) {
    try {
        function(pContext, nArguments, arArguments);
    } catch (const std::exception&) {
        sqlite3_result_error_nomem(pContext);
    }
}

struct CDialectFunction {
    const char* m_pszName;
    int m_nArguments;
    CFunction m_function;
};

constexpr std::array g_arFunctions = {
    CDialectFunction{"isnumeric", 1, Guarded<IsNumeric>},
    CDialectFunction{"left", 2, Guarded<Left>},
    CDialectFunction{"val", 1, Guarded<Val>},
    CDialectFunction{"string", 2, Guarded<String>},
    CDialectFunction{"len", 1, Guarded<Len>},
    CDialectFunction{g_strAddFunction.data(), 2, Guarded<Add>},
};

} // namespace

int RegisterDialectFunctions(sqlite3* pDatabase) {
    constexpr int nFlags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    for (const CDialectFunction& function : g_arFunctions) {
        const int nResult =
            sqlite3_create_function_v2(pDatabase, function.m_pszName, function.m_nArguments, nFlags, nullptr,
                                       function.m_function, nullptr, nullptr, nullptr);
        if (nResult != SQLITE_OK) return nResult;
    }
    return SQLITE_OK;
}
