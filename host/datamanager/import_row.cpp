#include "host/datamanager/import_row.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

#include "host/datamanager/numbers.h"
#include "platform/windows/code_page.h"

namespace {

constexpr std::size_t g_nLongestTextCell = 255; // bytes, the buffers of the suite

/// A character for a message: `"𠀀" (U+20000)`; broken bytes have no form of their own.
std::string CharacterName(const std::string& strCharacter) {
    std::size_t nPosition = 0;
    char32_t character = 0xFFFD;
    NextUtf8(strCharacter, &nPosition, &character);
    if (character == 0xFFFD) return "the bytes are no UTF-8";
    std::array<char, 16> szCode{};
    std::snprintf(szCode.data(), szCode.size(), "U+%04X", static_cast<unsigned>(character));
    return "\"" + strCharacter + "\" (" + szCode.data() + ") is not in code page 936";
}

/// The reason why the text is refused, empty when it was taken.
std::string TakeText(const std::string& strField, CDbValue* pValue) {
    std::string strText;
    std::string strRefused;
    if (!Utf8ToGbk(strField, &strText, &strRefused)) return CharacterName(strRefused);
    if (strText.find('\0') != std::string::npos) return "the text holds a zero byte";
    if (strText.size() > g_nLongestTextCell)
        return "the text has " + std::to_string(strText.size()) + " bytes in code page 936, more than 255";
    *pValue = std::move(strText);
    return {};
}

struct CWholeRange {
    std::int64_t m_nLowest;
    std::int64_t m_nHighest;
};

CWholeRange RangeOf(ColumnKind kind) {
    switch (kind) {
    case ColumnKind::Int8:
        return {-128, 127};
    case ColumnKind::UInt8:
        return {0, 255};
    case ColumnKind::Int16:
        return {std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};
    default:
        return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
    }
}

std::string TakeWhole(const std::string& strField, ColumnKind kind, CDbValue* pValue) {
    const CWholeRange range = RangeOf(kind);
    const auto nValue = ParseWhole(strField, range.m_nLowest, range.m_nHighest);
    if (!nValue)
        return "\"" + strField + "\" is no whole number from " + std::to_string(range.m_nLowest) + " to " +
               std::to_string(range.m_nHighest);
    *pValue = *nValue;
    return {};
}

std::string TakeDecimal(const std::string& strField, CDbValue* pValue) {
    const auto value = ParseDecimal(strField);
    if (!value) return "\"" + strField + "\" is no decimal number within the range of a 4-byte float";
    *pValue = *value;
    return {};
}

std::string TakeField(const std::string& strField, const CImportColumn& column, CDbValue* pValue) {
    if (strField.empty() && column.m_bMayBeEmpty) return {};
    if (strField.empty()) return "the field is empty";
    if (column.m_kind == ColumnKind::Text) return TakeText(strField, pValue);
    if (column.m_kind == ColumnKind::Float) return TakeDecimal(strField, pValue);
    return TakeWhole(strField, column.m_kind, pValue);
}

bool IsKnownMethod(const CDbValue& value) {
    constexpr std::array<std::string_view, 3> arMethods = {"不固结不排水剪", "固结不排水剪", "固结排水剪"};
    const auto* pText = std::get_if<std::string>(&value);
    return !pText || std::ranges::find(arMethods, *pText) != arMethods.end();
}

} // namespace

bool ReadImportRow(std::string_view strFile, const CImportHeader& header, const CCsvRecord& record,
                   CImportReport* pReport, std::vector<CDbValue>* pValues) {
    const auto& arColumns = header.m_pKind->m_arColumns;
    const std::size_t nFields = header.m_arPlaces.size();
    const auto nameOf = [&](std::size_t nField) {
        return nField < nFields ? std::string(arColumns[header.m_arPlaces[nField]].m_strName)
                                : std::to_string(nField + 1);
    };
    const auto refuse = [&](std::size_t nField, std::string_view strReason) {
        pReport->Refuse(strFile, record.m_nLine, nameOf(nField), strReason);
        return false;
    };
    const std::size_t nGiven = record.m_arFields.size();
    if (!record.m_strFault.empty()) return refuse(nGiven - 1, record.m_strFault);
    if (nGiven < nFields) return refuse(nGiven, "the line ends before this field");
    if (nGiven > nFields) return refuse(nFields, "the line has more fields than the header");
    pValues->assign(arColumns.size(), CDbValue());
    bool bSound = true;
    for (std::size_t i = 0; i < nFields; ++i) {
        const CImportColumn& column = arColumns[header.m_arPlaces[i]];
        CDbValue& value = (*pValues)[header.m_arPlaces[i]];
        const std::string strReason = TakeField(record.m_arFields[i], column, &value);
        if (!strReason.empty()) bSound = refuse(i, strReason);
        if (column.m_strName == "SYFF" && strReason.empty() && !IsKnownMethod(value))
            pReport->Warn(strFile, record.m_nLine, column.m_strName,
                          "unknown test method \"" + record.m_arFields[i] + "\"");
    }
    return bSound;
}
