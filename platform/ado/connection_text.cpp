#include "platform/ado/connection_text.h"

#include "platform/ado/text.h"
#include "platform/windows/code_page.h"

namespace {

/// The place behind the brace that closes a value opened just before nAt, or npos. A doubled one is part of
/// the value, and so is the second byte of a character.
std::size_t BehindBraces(std::string_view strText, std::size_t nAt) {
    while (nAt < strText.size()) {
        if (strText[nAt] == '}') {
            if (!strText.substr(nAt).starts_with("}}")) return nAt + 1;
            ++nAt;
        }
        const char* pAt = strText.data() + nAt;
        nAt += static_cast<std::size_t>(GbkCharLength(pAt, strText.data() + strText.size()));
    }
    return std::string_view::npos;
}

/// The same for a quote, which no second byte looks like.
std::size_t BehindQuote(std::string_view strText, std::size_t nAt, char cQuote) {
    const std::size_t nClose = strText.find(cQuote, nAt);
    return nClose == std::string_view::npos ? nClose : nClose + 1;
}

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
        std::size_t nBehind = std::string_view::npos;
        if (cOpen == '{') nBehind = BehindBraces(strText, nAt + 1);
        if (cOpen == '\'' || cOpen == '"') nBehind = BehindQuote(strText, nAt + 1, cOpen);
        if (nBehind != std::string_view::npos) nAt = nBehind;
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

std::string ConnectionPair(std::string_view strKey, std::string_view strValue) {
    std::string strPair = std::string(strKey) + "=";
    if (strValue.find_first_of(";{}='\" ") == std::string_view::npos) return strPair.append(strValue);
    strPair += '{';
    for (std::size_t nAt = 0; nAt < strValue.size();) {
        const char* pAt = strValue.data() + nAt;
        const auto nBytes = static_cast<std::size_t>(GbkCharLength(pAt, strValue.data() + strValue.size()));
        strPair.append(strValue, nAt, nBytes);
        if (strValue[nAt] == '}') strPair += '}';
        nAt += nBytes;
    }
    return strPair + '}';
}
