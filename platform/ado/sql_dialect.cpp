#include "platform/ado/sql_dialect.h"

#include <algorithm>
#include <array>

#include "platform/ado/sql_tokens.h"

namespace {

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
        } else if (token.m_kind == SqlTokenKind::Operator || IsSqlClauseWord(token)) {
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

} // namespace

std::string TranslateDialect(std::string_view strSql) {
    return CDialectWriter(strSql).Write();
}
