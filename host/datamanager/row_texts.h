#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/datamanager/schema.h"
#include "platform/ado/cursor.h"

/// A field as text, GBK, and whether it is a number.
struct CFieldText {
    std::string m_strText;
    bool m_bNumber = false;
};

/// The fields of a row; nothing for NULL.
using CRowTexts = std::vector<std::optional<CFieldText>>;

/// The names with commas between, for a statement.
std::string ColumnList(std::span<const std::string_view> arColumns);

/// The rows of a cursor, whose columns are these of the table. A number of a real column is the shortest text
/// that reads back to the same 4-byte float.
std::vector<CRowTexts> RowTexts(const CDbCursor& rows, const CTable& table,
                                std::span<const std::string_view> arColumns);
