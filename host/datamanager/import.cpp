#include "host/datamanager/import.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <unordered_map>

#include "host/datamanager/csv_reader.h"
#include "host/datamanager/failure.h"
#include "host/datamanager/import_header.h"
#include "host/datamanager/import_row.h"
#include "host/datamanager/table_store.h"
#include "host/datamanager/transaction.h"

namespace {

/// Where a row of this call stands.
struct CRowPlace {
    std::size_t m_nFile;
    std::size_t m_nLine;
};

/// The column under which a key that is taken is refused.
std::string_view LastKeyColumn(const CImportKind& kind) {
    std::string_view strName;
    for (const CImportColumn& column : kind.m_arColumns)
        if (column.m_bKey) strName = column.m_strName;
    return strName;
}

/// The rows of one kind on their way into their tables.
class CKindImport {
public:
    CKindImport(CDbConnection& database, std::int64_t nGCSY, const CImportKind& kind, bool bReplace) {
        for (const CImportPart& part : kind.m_arParts)
            m_arStores.push_back(std::make_unique<CTableStore>(database, nGCSY, kind, part, bReplace));
    }

    /// Where an earlier row of this call has the key; else the key is noted for this place.
    std::optional<CRowPlace> Note(const std::string& strKey, CRowPlace place) {
        const auto [it, bNew] = m_mapSeen.try_emplace(strKey, place);
        if (bNew) return std::nullopt;
        return it->second;
    }
    [[nodiscard]] bool Holds(const std::string& strKey) const {
        for (const auto& pStore : m_arStores)
            if (pStore->Holds(strKey)) return true;
        return false;
    }
    void Put(const std::string& strKey, const std::vector<CDbValue>& arRow) {
        for (const auto& pStore : m_arStores)
            pStore->Put(strKey, arRow);
    }
    void Count() { ++m_nRows; }
    void Flush() {
        for (const auto& pStore : m_arStores)
            pStore->Flush();
    }
    [[nodiscard]] std::size_t Rows() const { return m_nRows; }

private:
    std::vector<std::unique_ptr<CTableStore>> m_arStores;
    std::unordered_map<std::string, CRowPlace> m_mapSeen;
    std::size_t m_nRows = 0;
};

constexpr std::size_t g_nRecordsBetweenTellings = 256;

/// How many bytes of the file have been read; 0 for a pipe.
std::uintmax_t Position(std::ifstream& stream) {
    const std::streamoff nAt = stream.tellg();
    return nAt > 0 ? static_cast<std::uintmax_t>(nAt) : 0;
}

class CImport {
public:
    CImport(CDbConnection& database, std::int64_t nGCSY, const std::vector<std::string>& arFiles,
            bool bReplace, bool bWrite, CImportReport* pReport)
        : m_database(database)
        , m_nGCSY(nGCSY)
        , m_arFiles(arFiles)
        , m_bReplace(bReplace)
        , m_bWrite(bWrite)
        , m_pReport(pReport) {}

    /// Reads all files; rows that are sound are counted, and with bWrite on their way into the tables.
    CImportCounts ReadFiles() {
        for (std::size_t i = 0; i < m_arFiles.size(); ++i)
            ReadFile(i);
        if (m_pReport->Refusals() > 0) return {};
        return {Rows(0), Rows(1), Rows(2)};
    }
    void Flush() {
        for (auto& [pKind, rows] : m_mapKinds)
            rows.Flush();
    }

private:
    [[nodiscard]] std::size_t Rows(std::size_t nKind) const {
        const auto it = m_mapKinds.find(&ImportKinds()[nKind]);
        return it == m_mapKinds.end() ? 0 : it->second.Rows();
    }
    void ReadFile(std::size_t nFile);
    void TakeRow(std::size_t nFile, const CImportKind& kind, const CCsvRecord& record,
                 const std::vector<CDbValue>& arRow);

    CDbConnection& m_database;
    std::int64_t m_nGCSY;
    const std::vector<std::string>& m_arFiles;
    bool m_bReplace;
    bool m_bWrite;
    CImportReport* m_pReport;
    std::uintmax_t m_nReadBefore = 0; ///< bytes of the files before the current one
    std::unordered_map<const CImportKind*, CKindImport> m_mapKinds;
};

void CImport::ReadFile(std::size_t nFile) {
    const std::string& strFile = m_arFiles[nFile];
    std::ifstream stream(strFile, std::ios::binary);
    if (!stream || std::filesystem::is_directory(strFile))
        throw CFailure(ExitStatus::NoAccess, strFile + ": the file cannot be read");
    m_pReport->TellProgress(m_nReadBefore);
    CCsvReader reader(stream);
    CCsvRecord record;
    if (!reader.Next(&record)) {
        m_pReport->Refuse(strFile, 1, "header", "the file is empty");
        return;
    }
    CImportHeader header;
    if (!ReadImportHeader(strFile, record, m_pReport, &header)) return;
    m_mapKinds.try_emplace(header.m_pKind, m_database, m_nGCSY, *header.m_pKind, m_bReplace);
    std::vector<CDbValue> arRow;
    for (std::size_t nRecord = 1; reader.Next(&record); ++nRecord) {
        if (ReadImportRow(strFile, header, record, m_pReport, &arRow))
            TakeRow(nFile, *header.m_pKind, record, arRow);
        if (nRecord % g_nRecordsBetweenTellings == 0)
            m_pReport->TellProgress(m_nReadBefore + Position(stream));
    }
    m_nReadBefore += Position(stream);
}

void CImport::TakeRow(std::size_t nFile, const CImportKind& kind, const CCsvRecord& record,
                      const std::vector<CDbValue>& arRow) {
    CKindImport& rows = m_mapKinds.at(&kind);
    const std::string strKey = ImportKey(kind, arRow);
    const auto refuse = [&](const std::string& strReason) {
        m_pReport->Refuse(m_arFiles[nFile], record.m_nLine, LastKeyColumn(kind), strReason);
    };
    if (const auto earlier = rows.Note(strKey, {nFile, record.m_nLine}))
        refuse("the same key stands in " + m_arFiles[earlier->m_nFile] + ":" +
               std::to_string(earlier->m_nLine));
    else if (!m_bReplace && rows.Holds(strKey))
        refuse("a row of this key is stored already");
    else if (m_bWrite && m_pReport->Refusals() == 0) // after a refusal the rest is only checked
        rows.Put(strKey, arRow);
    rows.Count();
}

} // namespace

std::string CountsText(const CImportCounts& counts) {
    return "readings: " + std::to_string(counts.m_nReadings) +
           "\nsamples: " + std::to_string(counts.m_nSamples) +
           "\nlayers: " + std::to_string(counts.m_nLayers) + "\n";
}

CImportCounts ImportFiles(CDbConnection& database, std::int64_t nGCSY,
                          const std::vector<std::string>& arFiles, bool bReplace, CImportReport* pReport) {
    CDbTransaction transaction(database);
    CImport import(database, nGCSY, arFiles, bReplace, true, pReport);
    const CImportCounts counts = import.ReadFiles();
    if (pReport->Refusals() > 0) return {};
    import.Flush();
    transaction.Commit();
    return counts;
}

CImportCounts CheckFiles(CDbConnection& database, std::int64_t nGCSY, const std::vector<std::string>& arFiles,
                         bool bReplace, CImportReport* pReport) {
    return CImport(database, nGCSY, arFiles, bReplace, false, pReport).ReadFiles();
}
