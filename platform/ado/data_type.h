#pragma once

#include "platform/ado/adodb_enums.h"
#include "platform/ado/cursor.h"

namespace ADODB {

/// The type under which a field shows its column: texts and bytes without a declared length are long ones,
/// and a column without a declared type is a variant.
DataTypeEnum DataTypeOf(const CDbColumn& column);

/// The size a field is defined with: bytes of a number, characters of a text.
long DefinedSizeOf(const CDbColumn& column);

/// The column type that takes values of a data type; DBTYPE_EMPTY for a variant. A data type that is not
/// supported raises adErrDataConversion.
DBTYPE ColumnTypeOf(DataTypeEnum type);

} // namespace ADODB
