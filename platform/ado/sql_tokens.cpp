#include "platform/ado/sql_tokens.h"

#include <algorithm>
#include <array>

#include "platform/ado/text.h"

namespace {

bool IsNameStart(char c) {
    const char cLower = LowerAscii(c);
    return (cLower >= 'a' && cLower <= 'z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool IsNamePart(char c) {
    return IsNameStart(c) || IsDigit(c) || c == '$';
}

class CSqlScanner {
public:
    explicit CSqlScanner(std::string_view strSql)
        : m_strSql(strSql) {}

    std::vector<CSqlToken> Scan() {
        std::vector<CSqlToken> arTokens;
        for (SkipBlanks(); m_nAt < m_strSql.size(); SkipBlanks()) {
            const std::size_t nStart = m_nAt;
            const SqlTokenKind kind = Next();
            arTokens.push_back({kind, nStart, m_strSql.substr(nStart, m_nAt - nStart)});
        }
        return arTokens;
    }

private:
    [[nodiscard]] char At(std::size_t nPlace) const {
        return nPlace < m_strSql.size() ? m_strSql[nPlace] : '\0';
    }
    [[nodiscard]] bool Here(std::string_view strText) const {
        return m_strSql.substr(m_nAt, strText.size()) == strText;
    }

    /// Moves behind the next `strEnd`, or to the statement's end.
    void PassThrough(std::string_view strEnd, std::size_t nFrom) {
        const std::size_t nFound = m_strSql.find(strEnd, nFrom);
        m_nAt = nFound == std::string_view::npos ? m_strSql.size() : nFound + strEnd.size();
    }

    void SkipBlanks() {
        while (m_nAt < m_strSql.size()) {
            if (IsBlank(m_strSql[m_nAt]))
                ++m_nAt;
            else if (Here("--"))
                PassThrough("\n", m_nAt);
            else if (Here("/*"))
                PassThrough("*/", m_nAt + 2);
            else
                return;
        }
    }

    SqlTokenKind Next() {
        const char c = m_strSql[m_nAt];
        if (c == '\'' || c == '"' || c == '`' || c == '[') return Quoted(c);
        if (IsDigit(c) || (c == '.' && IsDigit(At(m_nAt + 1)))) return Number();
        if (IsNameStart(c)) return Run(SqlTokenKind::Word);
        if (c == '?' || ((c == ':' || c == '@' || c == '$') && IsNamePart(At(m_nAt + 1))))
            return Run(SqlTokenKind::Parameter);
        if (c == '(' || c == ')') {
            ++m_nAt;
            return c == '(' ? SqlTokenKind::Open : SqlTokenKind::Close;
        }
        return Operator();
    }

    SqlTokenKind Run(SqlTokenKind kind) {
        for (++m_nAt; IsNamePart(At(m_nAt)); ++m_nAt) {
        }
        return kind;
    }

    SqlTokenKind Quoted(char cOpen) {
        const char cClose = cOpen == '[' ? ']' : cOpen;
        for (;;) {
            PassThrough(std::string_view(&cClose, 1), m_nAt + 1);
            if (cOpen == '[' || At(m_nAt) != cClose) break; // a doubled quote stands for one and goes on
        }
        return cOpen == '\'' ? SqlTokenKind::Text : SqlTokenKind::QuotedName;
    }

    SqlTokenKind Number() {
        const bool bHex = At(m_nAt) == '0' && LowerAscii(At(m_nAt + 1)) == 'x';
        while (IsNamePart(At(m_nAt)) || At(m_nAt) == '.') {
            const bool bSign = At(m_nAt + 1) == '+' || At(m_nAt + 1) == '-';
            const bool bExponent = !bHex && LowerAscii(At(m_nAt)) == 'e' && bSign && IsDigit(At(m_nAt + 2));
            m_nAt += bExponent ? 2 : 1;
        }
        return SqlTokenKind::Number;
    }

    SqlTokenKind Operator() {
        static constexpr std::array s_arLong = {
            std::string_view("->>"), std::string_view("->"), std::string_view("||"), std::string_view("<="),
            std::string_view(">="),  std::string_view("<>"), std::string_view("!="), std::string_view("=="),
            std::string_view("<<"),  std::string_view(">>")};
        for (const std::string_view strOperator : s_arLong) {
            if (!Here(strOperator)) continue;
            m_nAt += strOperator.size();
            return SqlTokenKind::Operator;
        }
        ++m_nAt;
        return SqlTokenKind::Operator;
    }

    std::string_view m_strSql;
    std::size_t m_nAt = 0;
};

} // namespace

bool CSqlToken::IsWord(std::string_view strWord) const {
    return m_kind == SqlTokenKind::Word && EqualNoCase(m_strText, strWord);
}

bool IsSqlClauseWord(const CSqlToken& token) {
    static constexpr std::array<std::string_view, 50> s_arSorted = {
        "all",      "and",   "as",     "asc",     "between",   "by",      "cross", "delete", "desc",
        "distinct", "else",  "escape", "except",  "exists",    "from",    "full",  "glob",   "group",
        "having",   "in",    "inner",  "insert",  "intersect", "into",    "is",    "isnull", "join",
        "like",     "limit", "match",  "natural", "not",       "notnull", "nulls", "offset", "on",
        "or",       "order", "outer",  "regexp",  "returning", "select",  "set",   "then",   "union",
        "update",   "using", "values", "when",    "where"};
    std::array<char, 9> szLower{}; // as long as the longest
    if (token.m_kind != SqlTokenKind::Word || token.m_strText.size() > szLower.size()) return false;
    std::transform(token.m_strText.begin(), token.m_strText.end(), szLower.begin(), LowerAscii);
    return std::binary_search(s_arSorted.begin(), s_arSorted.end(),
                              std::string_view(szLower.data(), token.m_strText.size()));
}

std::vector<CSqlToken> TokenizeSql(std::string_view strSql) {
    return CSqlScanner(strSql).Scan();
}
