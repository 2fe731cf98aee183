#include "platform/ado/sql_dialect.h"

#include <algorithm>
#include <array>

#include "platform/ado/sql_tokens.h"
#include "platform/ado/text.h"

namespace {

bool IsAnyWord(const CSqlToken& token, auto const& arWords) {
    return std::any_of(arWords.begin(), arWords.end(),
                       [&](std::string_view strWord) { return token.IsWord(strWord); });
}

/// Words that can never be an operand of `+` nor stand inside one.
bool IsClauseWord(const CSqlToken& token) {
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

/// Operators that bind closer than `+`.
bool BindsCloser(const CSqlToken& token) {
    static constexpr std::array<std::string_view, 8> s_arOperators = {"*",  "/",   "%", "||",
                                                                      "->", "->>", ".", "~"};
    return token.IsWord("collate") ||
           std::any_of(s_arOperators.begin(), s_arOperators.end(),
                       [&](std::string_view strOperator) { return token.Is(strOperator); });
}

/// A sum being read from left to right: what is summed up so far, and the term under way.
class CSum {
public:
    /// Whether the term has an operand at its end, so that a sign after it joins two operands.
    [[nodiscard]] bool EndsWithOperand() const { return m_bOperand; }

    /// Notes the blanks and comments before the first token; later calls change nothing.
    void Begin(std::size_t nBlanks) {
        if (m_strSum.empty() && m_strSign.empty() && m_strTerm.empty()) m_nBlanks = nBlanks;
    }

    void AddToTerm(std::string_view strText, bool bOperand, bool bNumber) {
        m_bTermIsNumber = bNumber && m_strTerm.empty();
        m_strTerm += strText;
        m_bOperand = bOperand;
    }

    void AddSign(std::string_view strText, bool bPlus) {
        Fold();
        m_strSign = strText;
        m_bPlus = bPlus;
    }

    /// The finished sum; the next one begins.
    std::string Take() {
        Fold();
        std::string strSum = std::move(m_strSum);
        *this = CSum();
        return strSum;
    }

private:
    void Fold() {
        if (m_bPlus && !(m_bSumIsNumber && m_bTermIsNumber)) {
            m_strSum = m_strSum.substr(0, m_nBlanks) + std::string(g_strAddFunction) + "(" +
                       m_strSum.substr(m_nBlanks) + "," + m_strTerm + ")";
            m_bSumIsNumber = false;
        } else {
            m_bSumIsNumber = m_bTermIsNumber && (m_strSign.empty() || m_bSumIsNumber);
            m_strSum += m_strSign + m_strTerm;
        }
        m_strSign.clear();
        m_strTerm.clear();
        m_bPlus = m_bOperand = m_bTermIsNumber = false;
    }

    std::string m_strSum;
    std::size_t m_nBlanks = 0;
    std::string m_strSign;
    std::string m_strTerm;
    bool m_bPlus = false;
    bool m_bOperand = false;
    bool m_bTermIsNumber = false;
    bool m_bSumIsNumber = false;
};

class CDialectWriter {
public:
    explicit CDialectWriter(std::string_view strSql)
        : m_strSql(strSql)
        , m_arTokens(TokenizeSql(strSql)) {}

    std::string Write() {
        std::string strText;
        while (m_nAt < m_arTokens.size())
            strText += Level(); // more than one level only at a stray `)` or `end`
        return strText.append(m_strSql.substr(m_nWritten));
    }

private:
    /// The next token with the blanks before it.
    std::string_view Take() {
        const std::size_t nFrom = m_nWritten;
        m_nWritten = m_arTokens[m_nAt++].End();
        return m_strSql.substr(nFrom, m_nWritten - nFrom);
    }

    /// Tokens up to and with the `)` or `end` that closes the level, or to the statement's end.
    std::string Level() {
        std::string strText;
        CSum sum;
        while (m_nAt < m_arTokens.size()) {
            const CSqlToken& token = m_arTokens[m_nAt];
            if (token.m_kind == SqlTokenKind::Close || token.IsWord("end")) {
                strText += sum.Take();
                return strText.append(Take());
            }
            if (EndsSum(token, sum)) strText += sum.Take();
            Put(token, &strText, &sum);
        }
        return strText + sum.Take();
    }

    /// Whether the token cannot go on the term under way: an operand right after an operand, such as an
    /// alias.
    [[nodiscard]] bool EndsSum(const CSqlToken& token, const CSum& sum) const {
        const bool bOperand = token.m_kind != SqlTokenKind::Operator && token.m_kind != SqlTokenKind::Open;
        const bool bTouches = token.m_nStart == m_nWritten && token.m_kind == SqlTokenKind::Text; // x'00'
        return bOperand && sum.EndsWithOperand() && !bTouches && !token.IsWord("collate");
    }

    void Put(const CSqlToken& token, std::string* pText, CSum* pSum) {
        pSum->Begin(token.m_nStart - m_nWritten);
        if (token.m_kind == SqlTokenKind::Open || token.IsWord("case")) {
            std::string strGroup(Take());
            strGroup += Level();
            pSum->AddToTerm(strGroup, true, false);
        } else if (IsReservedFunction(token)) {
            std::string strName(Take());
            strName.insert(strName.size() - token.m_strText.size(), 1, '"').push_back('"');
            pSum->AddToTerm(strName, true, false);
        } else if (token.Is("+") || token.Is("-")) {
            const bool bSum = pSum->EndsWithOperand();
            const bool bPlus = token.Is("+");
            bSum ? pSum->AddSign(Take(), bPlus) : pSum->AddToTerm(Take(), false, false);
        } else if (BindsCloser(token)) {
            const bool bAll = token.Is("*") && !pSum->EndsWithOperand(); // select *, count(*), t.*
            pSum->AddToTerm(Take(), bAll, false);
        } else if (token.m_kind == SqlTokenKind::Operator || IsClauseWord(token)) {
            pText->append(pSum->Take()).append(Take());
        } else {
            pSum->AddToTerm(Take(), true, token.m_kind == SqlTokenKind::Number);
        }
    }

    [[nodiscard]] bool IsReservedFunction(const CSqlToken& token) const {
        const bool bReserved = token.IsWord("left") || token.IsWord("right");
        return bReserved && m_nAt + 1 < m_arTokens.size() &&
               m_arTokens[m_nAt + 1].m_kind == SqlTokenKind::Open;
    }

    std::string_view m_strSql;
    std::vector<CSqlToken> m_arTokens;
    std::size_t m_nAt = 0;
    std::size_t m_nWritten = 0;
};

bool IsName(const CSqlToken& token) {
    return (token.m_kind == SqlTokenKind::Word || token.m_kind == SqlTokenKind::QuotedName) &&
           !IsClauseWord(token);
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

std::string TranslateDialect(std::string_view strSql) {
    return CDialectWriter(strSql).Write();
}

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
