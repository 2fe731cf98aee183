#include "data/null_syntax.h"

#include <string>
#include <string_view>

namespace {

constexpr std::string_view g_strTest = "IS NULL";
constexpr std::string_view g_strAssignment = "= NULL";
constexpr std::string_view g_strCondition = "where";

/// Behind the literal that begins at nStart; the end of the text where it is not closed.
std::size_t LiteralEnd(std::string_view strText, std::size_t nStart) {
    for (std::size_t i = nStart + 1; i < strText.size(); ++i) {
        if (strText[i] != '\'') continue;
        if (i + 1 == strText.size() || strText[i + 1] != '\'') return i + 1;
        ++i; // a doubled quote
    }
    return strText.size();
}

/// The first place of a word outside literals; npos when there is none.
std::size_t FindOutsideLiterals(std::string_view strText, std::string_view strWord) {
    for (std::size_t i = 0; i < strText.size();) {
        if (strText.substr(i).starts_with(strWord)) return i;
        i = strText[i] == '\'' ? LiteralEnd(strText, i) : i + 1;
    }
    return std::string_view::npos;
}

/// Appends to a text what an empty literal becomes there, by the characters at its sides.
void AppendEmptyLiteral(char nextCharacter, std::string* pText) {
    if (pText->ends_with('=')) {
        pText->back() = ' ';
        *pText += g_strTest;
    } else if (pText->ends_with(',') || nextCharacter == ',' || nextCharacter == ' ') {
        *pText += "NULL";
    } else {
        *pText += "''";
    }
}

std::string WithoutEmptyLiterals(std::string_view strText) {
    std::string strFixed;
    for (std::size_t i = 0; i < strText.size();) {
        if (strText[i] != '\'') {
            strFixed += strText[i++];
            continue;
        }
        const std::size_t nEnd = LiteralEnd(strText, i);
        const std::string_view strLiteral = strText.substr(i, nEnd - i);
        if (strLiteral == "''")
            AppendEmptyLiteral(nEnd < strText.size() ? strText[nEnd] : '\0', &strFixed);
        else
            strFixed += strLiteral;
        i = nEnd;
    }
    return strFixed;
}

} // namespace

void FixNullSyntax(CString* pStatement) {
    std::string strText = WithoutEmptyLiterals(pStatement->View());
    for (;;) {
        const std::size_t nTest = FindOutsideLiterals(strText, g_strTest);
        const std::size_t nCondition = FindOutsideLiterals(strText, g_strCondition);
        if (nCondition == std::string::npos || nTest > nCondition) break;
        strText.replace(nTest, g_strTest.size(), g_strAssignment);
    }
    *pStatement = strText;
}
