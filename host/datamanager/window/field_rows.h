#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "host/datamanager/row_texts.h"
#include "host/datamanager/window/text_table.h"

/// Columns of the suite's names with what they hold, one meaning each; those from nFirstNumber on hold
/// numbers.
std::vector<CTextColumn> FieldColumns(std::span<const std::string_view> arNames,
                                      std::span<const char16_t* const> arMeanings, std::size_t nFirstNumber);

/// Rows of a table for its view.
std::vector<CTextRow> FieldRows(std::span<const CRowTexts> arRows);
