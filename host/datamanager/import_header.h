#pragma once

#include <string_view>
#include <vector>

#include "host/datamanager/csv_reader.h"
#include "host/datamanager/import_kinds.h"
#include "host/datamanager/import_report.h"

/// What the header line of an import file says.
struct CImportHeader {
    const CImportKind* m_pKind = nullptr;
    std::vector<std::size_t> m_arPlaces; ///< per field of the file, the place of its column in the kind
};

/// Reads the header. What is wrong with it is reported under the file's name, and the answer is false.
bool ReadImportHeader(std::string_view strFile, const CCsvRecord& record, CImportReport* pReport,
                      CImportHeader* pHeader);
