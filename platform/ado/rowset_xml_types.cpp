#include "platform/ado/rowset_xml_types.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "platform/windows/code_page.h"

namespace {

/// The first row that fits is taken, so the plain names come first.
constexpr std::array g_arTypes = {
    CXmlType{DBTYPE_I1, "i1", ""},          CXmlType{DBTYPE_I2, "i2", ""},
    CXmlType{DBTYPE_I4, "int", ""},         CXmlType{DBTYPE_UI1, "ui1", ""},
    CXmlType{DBTYPE_UI4, "ui4", ""},        CXmlType{DBTYPE_R4, "r4", ""},
    CXmlType{DBTYPE_R8, "float", ""},       CXmlType{DBTYPE_DECIMAL, "number", "numeric"},
    CXmlType{DBTYPE_BOOL, "boolean", ""},   CXmlType{DBTYPE_DATE, "dateTime", "variantdate"},
    CXmlType{DBTYPE_BYTES, "bin.hex", ""},  CXmlType{DBTYPE_EMPTY, "string", "variant"},
    CXmlType{DBTYPE_BSTR, "string", "str"}, CXmlType{DBTYPE_I4, "i4", ""},
    CXmlType{DBTYPE_R8, "r8", ""},
};

constexpr std::size_t g_nEscapeLength = 7; // _xHHHH_

/// The character that an escape at a place of the text stands for.
std::optional<char32_t> EscapedCharacter(std::string_view strText, std::size_t nAt) {
    if (strText.size() - nAt < g_nEscapeLength || !strText.substr(nAt).starts_with("_x") ||
        strText[nAt + 6] != '_')
        return std::nullopt;
    unsigned nCode = 0;
    const char* pFirst = strText.data() + nAt + 2;
    const auto [pEnd, error] = std::from_chars(pFirst, pFirst + 4, nCode, 16);
    if (error != std::errc() || pEnd != pFirst + 4) return std::nullopt;
    return nCode;
}

bool XmlHolds(char32_t character) {
    if (character < 0x20) return character == '\t' || character == '\n' || character == '\r';
    return character != 0xFFFE && character != 0xFFFF;
}

std::string Escape(char32_t character) {
    std::array<char, 16> szEscape{};
    std::snprintf(szEscape.data(), szEscape.size(), "_x%04X_", static_cast<unsigned>(character));
    return szEscape.data();
}

} // namespace

const CXmlType& XmlTypeOf(DBTYPE wType) {
    return *std::find_if(g_arTypes.begin(), g_arTypes.end() - 1,
                         [wType](const CXmlType& type) { return type.m_wType == wType; });
}

DBTYPE TypeOfXml(std::string_view strType, std::string_view strDbType) {
    const bool bVariant = strDbType == "variant";
    for (const CXmlType& type : g_arTypes)
        if (type.m_strType == strType && (type.m_strDbType == "variant") == bVariant) return type.m_wType;
    return DBTYPE_BSTR;
}

std::string EscapedForXml(std::string_view strUtf8) {
    std::string strEscaped;
    for (std::size_t nAt = 0; nAt < strUtf8.size();) {
        const bool bLooksEscaped = EscapedCharacter(strUtf8, nAt).has_value();
        char32_t character = 0xFFFF;
        const std::size_t nStart = nAt;
        if (!NextUtf8(strUtf8, &nAt, &character)) ++nAt;
        if (bLooksEscaped || !XmlHolds(character))
            strEscaped += Escape(character);
        else
            strEscaped += strUtf8.substr(nStart, nAt - nStart);
    }
    return strEscaped;
}

std::string UnescapedFromXml(std::string_view strUtf8) {
    std::string strText;
    for (std::size_t nAt = 0; nAt < strUtf8.size();) {
        if (const std::optional<char32_t> character = EscapedCharacter(strUtf8, nAt)) {
            AppendUtf8(*character, &strText);
            nAt += g_nEscapeLength;
        } else {
            strText += strUtf8[nAt++];
        }
    }
    return strText;
}
