#include "platform/ado/criteria_parser.h"

#include <array>
#include <string>
#include <utility>

#include "platform/ado/cell_compare.h"
#include "platform/ado/com_error.h"
#include "platform/ado/date_text.h"
#include "platform/ado/number_text.h"
#include "platform/ado/sql_tokens.h"
#include "platform/ado/text.h"
#include "platform/windows/code_page.h"

namespace {

using CGroups = std::vector<std::vector<CCriterion>>;

/// Brackets multiply out; more groups than this are no filter that anybody wrote.
constexpr std::size_t g_nMostGroups = 10000;

[[noreturn]] void Raise(const std::string& strWhy) {
    ADODB::RaiseAdoError(ADODB::adErrInvalidArgument, "The criteria are not understood: " + strWhy + ".");
}

std::string Utf8Of(std::string_view strGbk) {
    std::string strUtf8;
    if (!GbkToUtf8(strGbk, &strUtf8)) Raise("its bytes are no characters");
    return strUtf8;
}

std::string GbkOf(std::string_view strUtf8) {
    std::string strGbk;
    Utf8ToGbk(strUtf8, &strGbk); // it was GBK before
    return strGbk;
}

/// A literal without its quotes, a doubled quote inside being one. An open literal has no quote at its end.
std::string Unquoted(std::string_view strLiteral) {
    const char cQuote = strLiteral.front();
    std::string strText;
    for (std::size_t i = 1; i < strLiteral.size(); ++i) {
        if (strLiteral[i] == cQuote && ++i >= strLiteral.size()) return strText;
        strText += strLiteral[i];
    }
    Raise("a text has no end");
}

class CCriteriaParser {
public:
    explicit CCriteriaParser(std::string_view strGbk)
        : m_strText(Utf8Of(strGbk))
        , m_arTokens(TokenizeSql(m_strText)) {}

    CGroups Parse() {
        CGroups arGroups = Either();
        if (m_nAt < m_arTokens.size()) Raise("\"" + Shown() + "\" is one too many");
        return arGroups;
    }

private:
    [[nodiscard]] bool Here(std::string_view strWord) const {
        return m_nAt < m_arTokens.size() && m_arTokens[m_nAt].IsWord(strWord);
    }
    [[nodiscard]] bool Here(SqlTokenKind kind) const {
        return m_nAt < m_arTokens.size() && m_arTokens[m_nAt].m_kind == kind;
    }
    [[nodiscard]] std::string Shown() const {
        return m_nAt < m_arTokens.size() ? GbkOf(m_arTokens[m_nAt].m_strText) : "the end";
    }

    CGroups Either() {
        CGroups arGroups = Together();
        while (Here("or")) {
            ++m_nAt;
            for (auto& arGroup : Together())
                arGroups.push_back(std::move(arGroup));
        }
        return arGroups;
    }

    CGroups Together() {
        CGroups arGroups = One();
        while (Here("and")) {
            ++m_nAt;
            const CGroups arOthers = One();
            CGroups arBoth;
            if (arGroups.size() * arOthers.size() > g_nMostGroups) Raise("there are too many conditions");
            for (const auto& arGroup : arGroups)
                for (const auto& arOther : arOthers) {
                    arBoth.push_back(arGroup);
                    arBoth.back().insert(arBoth.back().end(), arOther.begin(), arOther.end());
                }
            arGroups = std::move(arBoth);
        }
        return arGroups;
    }

    CGroups One() {
        if (!Here(SqlTokenKind::Open)) return {{Condition()}};
        if (++m_nDepth > g_nDeepest) Raise("there are too many brackets");
        ++m_nAt;
        CGroups arGroups = Either();
        if (!Here(SqlTokenKind::Close)) Raise("a bracket is missing at " + Shown());
        ++m_nAt;
        --m_nDepth;
        return arGroups;
    }

    CCriterion Condition() {
        CCriterion criterion;
        criterion.m_strColumn = Column();
        criterion.m_operator = Operator();
        criterion.m_value = Value();
        const bool bNull = std::holds_alternative<std::monostate>(criterion.m_value.m_value);
        const bool bEquals = criterion.m_operator == CriterionOperator::Equal ||
                             criterion.m_operator == CriterionOperator::NotEqual;
        if (bNull && !bEquals) Raise("NULL goes with = and <> only");
        if (criterion.m_operator == CriterionOperator::Like) TakePattern(&criterion.m_value);
        return criterion;
    }

    std::string Column() {
        if (!Here(SqlTokenKind::Word) && !Here(SqlTokenKind::QuotedName))
            Raise("\"" + Shown() + "\" is no column");
        const std::string_view strToken = m_arTokens[m_nAt].m_strText;
        const bool bQuoted = Here(SqlTokenKind::QuotedName) && strToken.size() >= 2;
        std::string strName = GbkOf(bQuoted ? strToken.substr(1, strToken.size() - 2) : strToken);
        ++m_nAt;
        return strName;
    }

    CriterionOperator Operator() {
        static constexpr std::array<std::pair<std::string_view, CriterionOperator>, 7> s_arOperators = {
            {{"=", CriterionOperator::Equal},
             {"<>", CriterionOperator::NotEqual},
             {"!=", CriterionOperator::NotEqual},
             {"<", CriterionOperator::Less},
             {">", CriterionOperator::Greater},
             {"<=", CriterionOperator::LessOrEqual},
             {">=", CriterionOperator::GreaterOrEqual}}};
        if (Here("like")) {
            ++m_nAt;
            return CriterionOperator::Like;
        }
        for (const auto& [strOperator, which] : s_arOperators)
            if (m_nAt < m_arTokens.size() && m_arTokens[m_nAt].Is(strOperator)) {
                ++m_nAt;
                return which;
            }
        Raise("\"" + Shown() + "\" is no comparison");
    }

    CCriterionValue Value() {
        CCriterionValue value;
        if (m_nAt >= m_arTokens.size()) Raise("a value is missing");
        const CSqlToken token = m_arTokens[m_nAt];
        if (token.Is("#")) return Date();
        if (token.Is("-") || token.Is("+") || token.m_kind == SqlTokenKind::Number) {
            value.m_value = Number();
            return value;
        }
        if (token.m_kind == SqlTokenKind::Text || token.m_strText.starts_with('"'))
            value.m_value = GbkOf(Unquoted(token.m_strText));
        else if (token.IsWord("true") || token.IsWord("false")) {
            value.m_value = std::int64_t{token.IsWord("true") ? 1 : 0};
            value.m_bTruth = true;
        } else if (!token.IsWord("null"))
            Raise("\"" + Shown() + "\" is no value");
        ++m_nAt;
        return value;
    }

    CDbValue Number() {
        std::string strNumber;
        if (!Here(SqlTokenKind::Number)) strNumber = m_arTokens[m_nAt++].m_strText == "-" ? "-" : "";
        if (!Here(SqlTokenKind::Number)) Raise("\"" + Shown() + "\" is no number");
        strNumber += m_arTokens[m_nAt++].m_strText;
        if (const auto nWhole = NumberFromText<std::int64_t>(strNumber)) return *nWhole;
        const auto dReal = NumberFromText<double>(strNumber);
        if (!dReal) Raise("\"" + strNumber + "\" is no number");
        return *dReal;
    }

    CCriterionValue Date() {
        const std::size_t nStart = m_arTokens[m_nAt].End();
        const std::size_t nEnd = m_strText.find('#', nStart);
        if (nEnd == std::string::npos) Raise("a date has no end");
        const std::string strDate = m_strText.substr(nStart, nEnd - nStart);
        if (!DaysFromText(strDate)) Raise("\"" + GbkOf(strDate) + "\" is no date");
        while (m_nAt < m_arTokens.size() && m_arTokens[m_nAt].m_nStart <= nEnd)
            ++m_nAt;
        CCriterionValue value;
        value.m_value = strDate;
        value.m_bDate = true;
        return value;
    }

    static void TakePattern(CCriterionValue* pValue) {
        std::string strPattern = CellText(CellOf(pValue->m_value));
        for (char& c : strPattern)
            if (c == '%') c = '*';
        std::wstring strFolded = FoldedText(strPattern);
        pValue->m_bToEnd = !strFolded.ends_with(L'*');
        if (!pValue->m_bToEnd) strFolded.pop_back();
        pValue->m_bFromStart = !strFolded.starts_with(L'*');
        if (!pValue->m_bFromStart) strFolded.erase(0, 1);
        const bool bOnlyFront = !pValue->m_bFromStart && pValue->m_bToEnd;
        if (bOnlyFront || strFolded.find(L'*') != std::wstring::npos)
            Raise("asterisks of LIKE stand at the end or at both ends");
        pValue->m_strPattern = strFolded;
    }

    static constexpr int g_nDeepest = 100;
    std::string m_strText; ///< UTF-8
    std::vector<CSqlToken> m_arTokens;
    std::size_t m_nAt = 0;
    int m_nDepth = 0;
};

} // namespace

std::vector<std::vector<CCriterion>> ParseCriteria(std::string_view strText) {
    return CCriteriaParser(strText).Parse();
}
