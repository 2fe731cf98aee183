#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/ado/cursor.h"

// Rows as XML (UTF-8) in the rowset schema form: a schema with each column's name and type, then a row
// element with an attribute for each value. NULL has no attribute, so an empty text stays apart from it. A
// character that XML cannot hold is written _xHHHH_, and so is an underscore that would be taken for the
// beginning of one.

/// The XML of these rows of a cursor, in this order.
std::string RowsetXml(const CDbCursor& cursor, std::span<const std::size_t> arRows);

/// The rows of such a text, kept in memory. Raises CComError: adErrReadFile for a text that is not of this
/// form or holds changes that are not stored yet, DB_E_ERRORSOCCURRED for a character that the code page
/// lacks.
std::unique_ptr<CDbCursor> ReadRowsetXml(std::string_view strXml);
