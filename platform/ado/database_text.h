#pragma once

#include <string>
#include <string_view>
#include <vector>

// Text on its way between the program, GBK, and an engine, UTF-8. The providers share it; strSource is the
// provider's name, for errors.

/// A statement for the engine. Throws CDbError when its bytes are no characters.
std::string StatementToUtf8(std::string_view strSql, std::string_view strSource);

/// A value for the engine. Throws CDbError when its bytes are no characters.
std::string ValueToUtf8(std::string_view strValue, std::string_view strSource);

/// A stored text in the code page. One that holds a character which the code page lacks throws a CDbError
/// that names the character, the table and the column (GBK).
std::string TextFromUtf8(std::string_view strUtf8, std::string_view strTable, std::string_view strColumn,
                         std::string_view strSource);

/// A name or message of the engine, GBK; empty where the code page lacks a character of it. Such a name is
/// never asked for.
std::string NameFromUtf8(std::string_view strUtf8);

/// A name in double quotes.
std::string QuotedName(std::string_view strName);

/// The statement that inserts a row with a parameter for each of these columns, names as they are written;
/// without columns the row has the table's own values.
std::string InsertStatement(std::string_view strTable, const std::vector<std::string>& arColumns);
