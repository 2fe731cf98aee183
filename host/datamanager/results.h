#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/datamanager/row_texts.h"
#include "platform/ado/provider.h"

/// The columns of the results in order.
std::span<const std::string_view> ResultColumns();

/// The stored strength values of a project's samples in natural order. Throws CDbError.
std::vector<CRowTexts> ReadResults(CDbConnection& database, std::int32_t nGCSY);

/// Csv and Tabs differ in the delimiter alone.
enum class ResultForm { Aligned, Csv, Tabs, Json };

/// The results as text, UTF-8; all forms but JSON begin with the columns' names.
std::string ResultsText(std::span<const CRowTexts> arRows, ResultForm form);
