#pragma once

#include <cstdint>
#include <string>

#include "platform/ado/provider.h"

enum class ResultForm { Aligned, Csv, Json };

/// The stored strength values of a project's samples in natural order, as text in UTF-8. Throws CDbError.
std::string ResultsText(CDbConnection& database, std::int32_t nGCSY, ResultForm form);
