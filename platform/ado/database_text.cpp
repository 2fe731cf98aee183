#include "platform/ado/database_text.h"

#include <array>
#include <cstdio>

#include "platform/ado/error.h"
#include "platform/windows/code_page.h"

namespace {

/// "U+1F600" of a character in UTF-8.
std::string CodePointName(std::string_view strCharacter) {
    std::size_t nPosition = 0;
    char32_t character = 0xFFFD;
    if (!strCharacter.empty()) NextUtf8(strCharacter, &nPosition, &character);
    std::array<char, 16> szName{};
    std::snprintf(szName.data(), szName.size(), "U+%04X", static_cast<unsigned>(character));
    return szName.data();
}

} // namespace

std::string StatementToUtf8(std::string_view strSql, std::string_view strSource) {
    std::string strUtf8;
    if (!GbkToUtf8(strSql, &strUtf8))
        throw CDbError(DbFailure::NotInCodePage, 0, std::string(strSource),
                       "The statement is broken: its bytes are no characters.");
    return strUtf8;
}

std::string ValueToUtf8(std::string_view strValue, std::string_view strSource) {
    std::string strUtf8;
    if (!GbkToUtf8(strValue, &strUtf8))
        throw CDbError(DbFailure::NotInCodePage, 0, std::string(strSource),
                       "a text is broken: its bytes are no characters");
    return strUtf8;
}

std::string TextFromUtf8(std::string_view strUtf8, std::string_view strTable, std::string_view strColumn,
                         std::string_view strSource) {
    std::string strGbk;
    std::string strRefused;
    if (Utf8ToGbk(strUtf8, &strGbk, &strRefused)) return strGbk;
    throw CDbError(DbFailure::NotInCodePage, 0, std::string(strSource),
                   std::string(strTable).append(".").append(strColumn) + ": character " +
                       CodePointName(strRefused) + " is not in the system code page");
}

std::string NameFromUtf8(std::string_view strUtf8) {
    std::string strGbk;
    Utf8ToGbk(strUtf8, &strGbk);
    return strGbk;
}

std::string QuotedName(std::string_view strName) {
    std::string strQuoted = "\"";
    for (const char c : strName)
        strQuoted.append(c == '"' ? 2 : 1, c);
    return strQuoted + '"';
}

std::string InsertStatement(std::string_view strTable, const std::vector<std::string>& arColumns) {
    std::string strSql = "INSERT INTO " + std::string(strTable);
    if (arColumns.empty()) return strSql + " DEFAULT VALUES";
    std::string strPlaces;
    for (const std::string& strColumn : arColumns) {
        strSql.append(strPlaces.empty() ? "(" : ",").append(strColumn);
        strPlaces += strPlaces.empty() ? "?" : ",?";
    }
    return strSql + ") VALUES(" + strPlaces + ")";
}
