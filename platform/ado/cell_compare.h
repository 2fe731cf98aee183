#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "platform/ado/types.h"
#include "platform/ado/value.h"

/// A text, GBK, as sorting and searching see it: wide, ASCII letters small. Texts then compare by code point.
std::wstring FoldedText(std::string_view strText);

/// The order of two cells of a column: NULL, numbers by value, texts without case, bytes. In a date column
/// texts that are dates compare as dates.
std::weak_ordering CompareCells(const CDbCell& left, const CDbCell& right, DBTYPE wDeclared);
