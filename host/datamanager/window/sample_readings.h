#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/reading.h"
#include "host/datamanager/row_texts.h"
#include "platform/ado/provider.h"

/// The readings of a sample in order of specimen and running number, as they stand in the table and as the
/// reduction takes them; both lists have the same rows.
struct CSampleReadings {
    std::vector<CRowTexts> m_arRows; ///< fields of ReadingColumns()
    std::vector<CTestReading> m_arReadings;
};

/// The columns that are shown of a reading.
std::span<const std::string_view> ReadingColumns();

/// Reads a sample's readings; the texts are GBK. Throws CDbError.
CSampleReadings ReadSampleReadings(CDbConnection& database, std::int32_t nGCSY, const std::string& strZKBH,
                                   const std::string& strQYBH);
