#include "host/datamanager/window/import_requests.h"

#include <filesystem>
#include <fstream>

#include "host/datamanager/project_database.h"

namespace {

using CImportCall = CImportCounts (*)(CDbConnection&, std::int64_t, const std::vector<std::string>&, bool,
                                      CImportReport*);

std::uint64_t WholeSize(const std::vector<std::string>& arFiles) {
    std::uint64_t nWhole = 0;
    for (const std::string& strFile : arFiles) {
        std::error_code error;
        const std::uintmax_t nSize = std::filesystem::file_size(strFile, error);
        if (!error) nWhole += nSize;
    }
    return nWhole;
}

CImportOutcome Import(const CImportTask& task, CImportWatch& watch, CImportCall pfnCall) {
    CImportOutcome outcome;
    watch.m_nWhole = WholeSize(task.m_arFiles);
    CImportReport report(
        [&](const CImportRemark& remark) {
            std::size_t& nOfKind = remark.m_bRefusal ? outcome.m_nRefusals : outcome.m_nWarnings;
            if (++nOfKind <= g_nMostRemarks) outcome.m_arRemarks.push_back(remark);
        },
        [&](std::uintmax_t nRead) {
            watch.m_nRead = nRead;
            return !watch.m_bGivenUp;
        });
    const CInstallation installation;
    const CProject project = FindProject(installation, task.m_strGCBH);
    outcome.m_counts = AtProjectDatabase(installation, project, [&](CDbConnection& database) {
        return pfnCall(database, project.m_nGCSY, task.m_arFiles, task.m_bReplace, &report);
    });
    return outcome;
}

} // namespace

CImportOutcome CheckImport(const CImportTask& task, CImportWatch& watch) {
    CImportOutcome outcome = Import(task, watch, CheckFiles);
    for (const std::string& strFile : task.m_arFiles) {
        std::set<std::size_t> setLines;
        for (const CImportRemark& remark : outcome.m_arRemarks)
            if (remark.m_strFile == strFile) setLines.insert(remark.m_nLine);
        outcome.m_arPreviews.push_back(PreviewFile(strFile, setLines, watch));
    }
    return outcome;
}

CImportOutcome RunImport(const CImportTask& task, CImportWatch& watch) {
    return Import(task, watch, ImportFiles);
}

CFilePreview PreviewFile(const std::string& strFile, const std::set<std::size_t>& setLines,
                         const CImportWatch& watch) {
    CFilePreview preview{strFile, {}};
    std::ifstream stream(strFile, std::ios::binary);
    CCsvReader reader(stream);
    CCsvRecord record;
    const std::size_t nLastLine = setLines.empty() ? 0 : *setLines.rbegin();
    for (std::size_t nRecord = 0; !watch.m_bGivenUp && reader.Next(&record); ++nRecord) {
        const bool bFirst = nRecord <= g_nPreviewRows;
        if (!bFirst && record.m_nLine > nLastLine) break;
        if (bFirst || setLines.contains(record.m_nLine)) preview.m_arRecords.push_back(record);
    }
    return preview;
}
