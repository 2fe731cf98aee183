#pragma once

/// What the value of a group is. The whole numbers differ by their size in the binary form.
enum class CDxfKind { None, Text, Real, Flag, Short, Long, LongLong, Bytes };

/// The kind of value that a group code has; None for a code that no file has.
CDxfKind DxfKindOf(int nCode);
