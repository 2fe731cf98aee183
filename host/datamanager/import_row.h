#pragma once

#include <string_view>
#include <vector>

#include "host/datamanager/import_header.h"
#include "platform/ado/value.h"

/// Turns a record into values, one for each column of the kind in its order. What is wrong with it is
/// reported under the file's name, field by field, and the answer is false.
bool ReadImportRow(std::string_view strFile, const CImportHeader& header, const CCsvRecord& record,
                   CImportReport* pReport, std::vector<CDbValue>* pValues);
