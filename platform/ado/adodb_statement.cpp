#include "platform/ado/adodb_statement.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/ado/adodb_enums.h"
#include "platform/ado/com_error.h"
#include "platform/ado/sql_tokens.h"
#include "platform/ado/text.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"

using namespace ADODB;

namespace {

/// The command types among the options; the other bits say how to run.
constexpr long g_nTypes = adCmdText | adCmdTable | adCmdStoredProc | adCmdUnknown | adCmdTableDirect;

bool IsName(const CSqlToken& token) {
    return token.m_kind == SqlTokenKind::Word || token.m_kind == SqlTokenKind::QuotedName;
}

/// Whether the text is a table's name: one name, or one of a schema.
bool IsLoneName(const std::vector<CSqlToken>& arTokens) {
    if (arTokens.size() == 1) return IsName(arTokens[0]);
    return arTokens.size() == 3 && IsName(arTokens[0]) && arTokens[1].Is(".") && IsName(arTokens[2]);
}

bool GivesRows(const std::vector<CSqlToken>& arTokens) {
    static constexpr std::array<std::string_view, 7> s_arFirst = {"select",  "values", "with", "pragma",
                                                                  "explain", "show",   "call"};
    if (arTokens.empty()) return false;
    return arTokens[0].m_kind == SqlTokenKind::Open || arTokens[0].Is("{") ||
           std::any_of(s_arFirst.begin(), s_arFirst.end(),
                       [&](std::string_view strWord) { return arTokens[0].IsWord(strWord); });
}

void CheckParameters(const std::vector<CSqlToken>& arTokens, std::size_t nGiven) {
    const auto nPlaces = std::count_if(arTokens.begin(), arTokens.end(), [](const CSqlToken& token) {
        return token.m_kind == SqlTokenKind::Parameter && token.m_strText == "?";
    });
    const auto nWanted = static_cast<std::size_t>(nPlaces);
    if (nGiven < nWanted)
        throw CComError(DB_E_PARAMNOTOPTIONAL, L"ADODB",
                        L"The statement has " + std::to_wstring(nWanted) + L" parameters, but " +
                            std::to_wstring(nGiven) + L" values are given.");
    if (nGiven > nWanted)
        RaiseAdoError(adErrInvalidParamInfo, "The statement has " + std::to_string(nWanted) +
                                                 " parameters, but " + std::to_string(nGiven) +
                                                 " values are given.");
}

} // namespace

CStatement ADODB::MakeStatement(const CDbConnection& database, const std::wstring& strText, long nOptions,
                                std::vector<CDbValue> arParameters) {
    const std::string strGbk(TrimBlanks(GbkOrRaise(strText)));
    const long nType = nOptions < 0 ? 0 : nOptions & g_nTypes;
    if (nType == adCmdStoredProc)
        return {database.ProcedureCall(strGbk, arParameters.size()), std::move(arParameters), true};
    std::string strUtf8;
    GbkToUtf8(strGbk, &strUtf8); // it was wide before, so all its bytes are characters
    const std::vector<CSqlToken> arTokens = TokenizeSql(strUtf8);
    const bool bTable =
        nType == adCmdTable || nType == adCmdTableDirect || (nType != adCmdText && IsLoneName(arTokens));
    CheckParameters(arTokens, arParameters.size());
    if (bTable) return {"select * from " + strGbk, std::move(arParameters), true};
    return {strGbk, std::move(arParameters), GivesRows(arTokens)};
}
