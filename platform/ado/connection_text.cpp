#include "platform/ado/connection_text.h"

#include "platform/ado/text.h"

namespace {

/// The place of the semicolon that ends the pair beginning at nStart, or the text's end. Quotes and braces
/// count only where they open the value, so an apostrophe inside a path is an apostrophe.
std::size_t PairEnd(std::string_view strText, std::size_t nStart) {
    std::size_t nAt = strText.find_first_of("=;", nStart);
    if (nAt == std::string_view::npos) return strText.size();
    if (strText[nAt] == ';') return nAt;
    ++nAt;
    while (nAt < strText.size() && IsBlank(strText[nAt]))
        ++nAt;
    if (nAt < strText.size()) {
        const char cOpen = strText[nAt];
        const char cClose = cOpen == '{' ? '}' : cOpen;
        if (cOpen == '\'' || cOpen == '"' || cOpen == '{') {
            const std::size_t nClose = strText.find(cClose, nAt + 1);
            if (nClose != std::string_view::npos) nAt = nClose + 1;
        }
    }
    return std::min(strText.find(';', nAt), strText.size());
}

std::string_view Unquoted(std::string_view strValue) {
    const bool bQuoted = strValue.size() >= 2 && strValue.front() == strValue.back() &&
                         (strValue.front() == '\'' || strValue.front() == '"');
    return bQuoted ? strValue.substr(1, strValue.size() - 2) : strValue;
}

} // namespace

CConnectionText::CConnectionText(std::string_view strText) {
    for (std::size_t nStart = 0; nStart < strText.size();) {
        const std::size_t nEnd = PairEnd(strText, nStart);
        const std::string_view strPair = TrimBlanks(strText.substr(nStart, nEnd - nStart));
        nStart = nEnd + 1;
        if (strPair.empty()) continue;
        const std::size_t nEquals = std::min(strPair.find('='), strPair.size());
        const std::string_view strValue =
            nEquals < strPair.size() ? strPair.substr(nEquals + 1) : std::string_view();
        m_arPairs.push_back({std::string(TrimBlanks(strPair.substr(0, nEquals))),
                             std::string(Unquoted(TrimBlanks(strValue))), std::string(strPair)});
    }
}

std::string CConnectionText::Value(std::string_view strKey) const {
    const auto found = std::find_if(m_arPairs.rbegin(), m_arPairs.rend(),
                                    [&](const CPair& pair) { return EqualNoCase(pair.m_strKey, strKey); });
    return found == m_arPairs.rend() ? std::string() : found->m_strValue;
}

std::string CConnectionText::Without(std::string_view strKey) const {
    std::string strRest;
    for (const CPair& pair : m_arPairs) {
        if (EqualNoCase(pair.m_strKey, strKey)) continue;
        if (!strRest.empty()) strRest += ';';
        strRest += pair.m_strAsWritten;
    }
    return strRest;
}
