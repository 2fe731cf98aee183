#include "platform/ado/plain_select.h"

#include <algorithm>
#include <array>

#include "platform/ado/sql_tokens.h"

namespace {

bool IsAnyWord(const CSqlToken& token, auto const& arWords) {
    return std::any_of(arWords.begin(), arWords.end(),
                       [&](std::string_view strWord) { return token.IsWord(strWord); });
}

bool IsName(const CSqlToken& token) {
    return (token.m_kind == SqlTokenKind::Word || token.m_kind == SqlTokenKind::QuotedName) &&
           !IsSqlClauseWord(token);
}

/// The position of the FROM of a SELECT of plain columns, else 0.
std::size_t FromOfPlainColumns(const std::vector<CSqlToken>& arTokens) {
    if (arTokens.empty() || !arTokens[0].IsWord("select")) return 0;
    for (std::size_t i = arTokens.size() > 1 && arTokens[1].IsWord("all") ? 2 : 1; i < arTokens.size(); ++i) {
        const CSqlToken& token = arTokens[i];
        if (token.IsWord("from")) return i;
        if (!IsName(token) && !token.Is("*") && !token.Is(".") && !token.Is(",") && !token.IsWord("as"))
            return 0;
    }
    return 0;
}

/// Where the table behind FROM ends.
std::size_t TableEnd(const std::vector<CSqlToken>& arTokens, std::size_t nFrom) {
    static constexpr std::array<std::string_view, 3> s_arNext = {"where", "order", "limit"};
    std::size_t nAt = nFrom + 1;
    while (nAt < arTokens.size() && !IsAnyWord(arTokens[nAt], s_arNext) && !arTokens[nAt].Is(";"))
        ++nAt;
    return nAt;
}

/// Whether one table stands behind FROM and nothing later makes one row of several.
bool ReadsOneTable(const std::vector<CSqlToken>& arTokens, std::size_t nFrom) {
    static constexpr std::array<std::string_view, 5> s_arMerging = {"group", "having", "union", "except",
                                                                    "intersect"};
    const std::size_t nEnd = TableEnd(arTokens, nFrom);
    for (std::size_t nAt = nFrom + 1; nAt < nEnd; ++nAt) {
        if (!IsName(arTokens[nAt]) && !arTokens[nAt].Is(".") && !arTokens[nAt].IsWord("as")) return false;
        if (arTokens[nAt].IsWord("left") || arTokens[nAt].IsWord("right")) return false;
    }
    int nDepth = 0;
    for (std::size_t nAt = nEnd; nAt < arTokens.size(); ++nAt) {
        nDepth += arTokens[nAt].m_kind == SqlTokenKind::Open    ? 1
                  : arTokens[nAt].m_kind == SqlTokenKind::Close ? -1
                                                                : 0;
        if (nDepth == 0 && IsAnyWord(arTokens[nAt], s_arMerging)) return false;
    }
    return true;
}

struct CTakenName {
    std::string m_strWhole; ///< `schema.table`
    std::string m_strLast;  ///< `table`
    std::string m_strOther; ///< what stands behind AS
};

/// Takes `a.b AS c` up to a comma or nEnd; *pAt stands on it then.
CTakenName TakeName(const std::vector<CSqlToken>& arTokens, std::size_t nEnd, std::size_t* pAt) {
    CTakenName name;
    for (bool bPart = true; *pAt < nEnd && !arTokens[*pAt].Is(","); ++*pAt) {
        const CSqlToken& token = arTokens[*pAt];
        if (token.Is(".")) {
            bPart = true;
            name.m_strWhole += '.';
        } else if (bPart) {
            bPart = false;
            name.m_strLast = token.m_strText;
            name.m_strWhole += token.m_strText;
        } else {
            name.m_strOther = token.m_strText; // AS itself first, if it stands there
        }
    }
    return name;
}

} // namespace

std::optional<CPlainSelect> ReadPlainSelect(std::string_view strSql) {
    const std::vector<CSqlToken> arTokens = TokenizeSql(strSql);
    const std::size_t nFrom = FromOfPlainColumns(arTokens);
    if (nFrom < 2 || !ReadsOneTable(arTokens, nFrom)) return std::nullopt;
    CPlainSelect select;
    const std::size_t nFirst = arTokens[1].IsWord("all") ? 2 : 1;
    if (nFirst == nFrom) return std::nullopt;
    select.m_nColumnsEnd = arTokens[nFrom - 1].End();
    const std::size_t nBegin = arTokens[nFirst].m_nStart;
    select.m_strColumns = strSql.substr(nBegin, select.m_nColumnsEnd - nBegin);
    for (std::size_t nAt = nFirst; nAt < nFrom; ++nAt)
        select.m_arColumns.emplace_back(TakeName(arTokens, nFrom, &nAt).m_strLast);
    std::size_t nAt = nFrom + 1;
    const CTakenName table = TakeName(arTokens, TableEnd(arTokens, nFrom), &nAt);
    select.m_strTable = table.m_strWhole;
    select.m_strAlias = table.m_strOther;
    return select;
}

std::optional<std::string> WithHiddenColumns(std::string_view strSql, std::string_view strHidden) {
    const auto select = ReadPlainSelect(strSql);
    if (!select) return std::nullopt;
    return std::string(strSql.substr(0, select->m_nColumnsEnd))
        .append(", ")
        .append(strHidden)
        .append(strSql.substr(select->m_nColumnsEnd));
}
