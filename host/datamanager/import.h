#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/datamanager/import_report.h"
#include "platform/ado/provider.h"

/// Rows that came in.
struct CImportCounts {
    std::size_t m_nReadings = 0;
    std::size_t m_nSamples = 0;
    std::size_t m_nLayers = 0;
};

/// A line for each kind.
std::string CountsText(const CImportCounts& counts);

/// Brings CSV files (paths in UTF-8) into a project's database, all of them or, when the report got any
/// refusal, none. With bReplace a stored row of the same key is overwritten, else it is refused. Throws
/// CFailure for a file that cannot be read and for an import that was given up, and CDbError.
CImportCounts ImportFiles(CDbConnection& database, std::int64_t nGCSY,
                          const std::vector<std::string>& arFiles, bool bReplace, CImportReport* pReport);

/// Does all of that but the writing: what it reports is what an import would refuse now, and the result what
/// it would bring in.
CImportCounts CheckFiles(CDbConnection& database, std::int64_t nGCSY, const std::vector<std::string>& arFiles,
                         bool bReplace, CImportReport* pReport);
