#pragma once

#include <atomic>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "host/datamanager/csv_reader.h"
#include "host/datamanager/import.h"

/// What the thread that imports shares with the one that watches it.
struct CImportWatch {
    std::atomic<bool> m_bGivenUp = false;                 ///< set by the watcher
    std::atomic<std::uint64_t> m_nRead = 0, m_nWhole = 0; ///< bytes of all files
};

struct CImportTask {
    std::string m_strGCBH;              ///< the project, GBK
    std::vector<std::string> m_arFiles; ///< UTF-8
    bool m_bReplace = false;
};

/// The beginning of a file, and further rows that remarks name.
struct CFilePreview {
    std::string m_strFile;
    std::vector<CCsvRecord> m_arRecords; ///< the first is the header
};

struct CImportOutcome {
    CImportCounts m_counts;
    std::size_t m_nRefusals = 0, m_nWarnings = 0;
    std::vector<CImportRemark> m_arRemarks; ///< the first refusals and the first warnings
    std::vector<CFilePreview> m_arPreviews; ///< of a check, one a file
};

/// So many refusals, warnings and rows of a file are kept for the eye; what is beyond is only counted.
inline constexpr std::size_t g_nMostRemarks = 5000;
inline constexpr std::size_t g_nPreviewRows = 200;

/// Checks an import and reads the files' previews. Throws CFailure, also when the watcher gives it up.
CImportOutcome CheckImport(const CImportTask& task, CImportWatch& watch);
/// Imports; nothing comes in when there is a refusal or the watcher gives it up, which throws CFailure.
CImportOutcome RunImport(const CImportTask& task, CImportWatch& watch);
/// Reads the first rows of a file and those that begin in these lines.
CFilePreview PreviewFile(const std::string& strFile, const std::set<std::size_t>& setLines,
                         const CImportWatch& watch);
