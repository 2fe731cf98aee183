#pragma once

#include <cstdint>

// Type codes of columns and bound buffers, and the status word beside a bound value. The codes below 128 are
// also the variant types under which a field's value is handed out by name.

using DBTYPE = std::uint16_t;
using DBSTATUS = std::uint32_t;

inline constexpr DBTYPE DBTYPE_EMPTY = 0;
inline constexpr DBTYPE DBTYPE_NULL = 1;
inline constexpr DBTYPE DBTYPE_I2 = 2;
inline constexpr DBTYPE DBTYPE_I4 = 3;
inline constexpr DBTYPE DBTYPE_R4 = 4;
inline constexpr DBTYPE DBTYPE_R8 = 5;
inline constexpr DBTYPE DBTYPE_DATE = 7;
inline constexpr DBTYPE DBTYPE_BSTR = 8;
inline constexpr DBTYPE DBTYPE_BOOL = 11;
inline constexpr DBTYPE DBTYPE_DECIMAL = 14;
inline constexpr DBTYPE DBTYPE_I1 = 16;
inline constexpr DBTYPE DBTYPE_UI1 = 17;
inline constexpr DBTYPE DBTYPE_UI4 = 19;
inline constexpr DBTYPE DBTYPE_BYTES = 128;
inline constexpr DBTYPE DBTYPE_STR = 129;

/// The buffer holds a value.
inline constexpr DBSTATUS DBSTATUS_S_OK = 0;
/// The database value is NULL; the buffer holds no value.
inline constexpr DBSTATUS DBSTATUS_S_ISNULL = 3;
