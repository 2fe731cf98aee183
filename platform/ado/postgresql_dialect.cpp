#include "platform/ado/postgresql_dialect.h"

#include <algorithm>
#include <array>
#include <vector>

#include "platform/ado/database_text.h"
#include "platform/ado/sql_tokens.h"
#include "platform/ado/text.h"

namespace {

/// The function that stands for `left`.
constexpr std::string_view g_strLeft = "tervo_left";
/// Behind a text: it compares by code point.
constexpr std::string_view g_strByCodePoint = " COLLATE \"C\"";

bool GivesText(const CSqlToken& token) {
    static constexpr std::array<std::string_view, 3> s_arFunctions = {"left", "string", "trim"};
    return std::ranges::any_of(s_arFunctions,
                               [&](std::string_view strName) { return token.IsWord(strName); });
}

/// A literal in which a backslash is a character like any other.
std::string PlainLiteral(std::string_view strLiteral) {
    if (strLiteral.find('\\') == std::string_view::npos) return std::string(strLiteral);
    std::string strPlain = "E";
    for (const char c : strLiteral)
        strPlain.append(c == '\\' ? 2 : 1, c);
    return strPlain;
}

/// A name in brackets or back quotes as the engine keeps names written without quotes.
std::string FoldedName(std::string_view strName) {
    std::string strFolded(strName.substr(1, strName.size() < 2 ? 0 : strName.size() - 2));
    std::ranges::transform(strFolded, strFolded.begin(), LowerAscii);
    return QuotedName(strFolded);
}

class CPostgresqlWriter {
public:
    explicit CPostgresqlWriter(std::string_view strSql)
        : m_strSql(strSql)
        , m_arTokens(TokenizeSql(strSql)) {
        while (!m_arTokens.empty() && m_arTokens.back().Is(";"))
            m_arTokens.pop_back();
    }

    std::string Write() {
        std::size_t nWritten = 0;
        for (std::size_t i = 0; i < m_arTokens.size(); ++i) {
            WriteGap(m_strSql.substr(nWritten, m_arTokens[i].m_nStart - nWritten));
            WriteToken(i);
            nWritten = m_arTokens[i].End();
        }
        return std::move(m_strText);
    }

private:
    void WriteGap(std::string_view strGap) {
        const bool bBlank = std::ranges::all_of(strGap, IsBlank);
        m_strText += bBlank ? strGap : " ";
    }

    void WriteToken(std::size_t nAt) {
        const CSqlToken& token = m_arTokens[nAt];
        const bool bCall = nAt + 1 < m_arTokens.size() && m_arTokens[nAt + 1].m_kind == SqlTokenKind::Open;
        switch (token.m_kind) {
        case SqlTokenKind::Open:
            m_arTextCalls.push_back(nAt > 0 && GivesText(m_arTokens[nAt - 1]));
            m_strText += token.m_strText;
            break;
        case SqlTokenKind::Close:
            m_strText += token.m_strText;
            if (!m_arTextCalls.empty() && m_arTextCalls.back()) m_strText += g_strByCodePoint;
            if (!m_arTextCalls.empty()) m_arTextCalls.pop_back();
            break;
        case SqlTokenKind::Text:
            m_strText += PlainLiteral(token.m_strText);
            if (IsAdded(nAt)) m_strText += "::text";
            break;
        case SqlTokenKind::QuotedName:
            m_strText +=
                token.m_strText.front() == '"' ? std::string(token.m_strText) : FoldedName(token.m_strText);
            break;
        default:
            m_strText += bCall && token.IsWord("left") ? g_strLeft : token.m_strText;
        }
    }

    /// Whether `+` stands beside the token.
    [[nodiscard]] bool IsAdded(std::size_t nAt) const {
        return (nAt > 0 && m_arTokens[nAt - 1].Is("+")) ||
               (nAt + 1 < m_arTokens.size() && m_arTokens[nAt + 1].Is("+"));
    }

    std::string_view m_strSql;
    std::vector<CSqlToken> m_arTokens;
    std::string m_strText;
    std::vector<bool>
        m_arTextCalls; ///< for each open parenthesis whether it is of a function that gives text
};

} // namespace

std::string TranslateForPostgresql(std::string_view strSql) {
    return CPostgresqlWriter(strSql).Write();
}

std::string InsertOfRows(std::string_view strSql, std::size_t nRows) {
    const std::vector<CSqlToken> arTokens = TokenizeSql(strSql);
    if (arTokens.empty() || !arTokens[0].IsWord("insert")) return {};
    const auto itValues =
        std::ranges::find_if(arTokens, [](const CSqlToken& token) { return token.IsWord("values"); });
    const auto nOpen = static_cast<std::size_t>(itValues - arTokens.begin()) + 1;
    if (nOpen + 2 >= arTokens.size() || arTokens[nOpen].m_kind != SqlTokenKind::Open) return {};
    for (std::size_t i = nOpen + 1; i + 1 < arTokens.size(); ++i) {
        const bool bMark = (i - nOpen) % 2 == 1;
        if (bMark ? arTokens[i].m_kind != SqlTokenKind::Parameter : !arTokens[i].Is(",")) return {};
    }
    if (arTokens.back().m_kind != SqlTokenKind::Close) return {};
    const std::string_view strRow = strSql.substr(arTokens[nOpen].m_nStart);
    std::string strRows(strSql);
    for (std::size_t i = 1; i < nRows; ++i)
        strRows.append(",").append(strRow);
    return strRows;
}
