#pragma once

#include <span>
#include <vector>

#include "host/datamanager/window/import_requests.h"
#include "host/datamanager/window/text_table.h"

// What an import's dialog shows of its files.

/// The columns of the list of refusals and warnings, and its rows.
std::vector<CTextColumn> RemarkColumns();
std::vector<CTextRow> RemarkRows(std::span<const CImportRemark> arRemarks);

/// The columns of a file's preview: the line, then the file's own.
std::vector<CTextColumn> PreviewColumns(const CFilePreview& preview);
/// The rows; those that a refusal names are marked, with its reason as their hint.
std::vector<CTextRow> PreviewRows(const CFilePreview& preview, std::span<const CImportRemark> arRemarks);
/// The preview's row for a line of its file; -1 where it has none.
int PreviewRowOf(const CFilePreview& preview, std::size_t nLine);

/// How many rows of each kind, on one line.
QString CountsLine(const CImportCounts& counts);
