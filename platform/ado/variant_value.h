#pragma once

#include <string>
#include <string_view>

#include "platform/ado/cursor.h"
#include "platform/ado/variant.h"

// Between variants, as the database objects show values, and the cells and values of the database layer.
// What cannot be converted raises CComError.

/// A column's cell as a variant of the type that CellType names. A whole number that 32 bits do not hold
/// comes as a decimal, a text in a date column that is no date as a text.
CVariant VariantOfCell(const CDbCell& cell, DBTYPE wDeclared);

/// The value to store in a column of a declared type: NULL for nothing, dates as texts, truth values as 1
/// and 0, numbers for number columns also when given as texts. A column without a declared type takes the
/// variant as it is. A value that does not fit raises adErrDataConversion or DB_E_DATAOVERFLOW.
CDbValue ValueForColumn(const CVariant& value, DBTYPE wDeclared);

/// The variant's text: numbers in their shortest exact form, dates as DateText, "True" and "False", bytes in
/// hexadecimal, nothing for NULL.
std::wstring VariantText(const CVariant& value);

/// Wide text, or text in UTF-8, in the code page. A character that is not in it raises DB_E_ERRORSOCCURRED,
/// which names it.
std::string GbkOrRaise(std::wstring_view strWide);
std::string GbkFromUtf8OrRaise(std::string_view strUtf8);
