#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/datamanager/import_kinds.h"
#include "platform/ado/provider.h"

/// The key of an import row as one text; rows have equal ones when their key columns are equal, real numbers
/// as 4-byte floats. arKeyValues are the values of the kind's key columns in order.
std::string ImportKey(const CImportKind& kind, const std::vector<CDbValue>& arRow);

/// Puts the rows of one project into one table, where other rows of these keys may stand already.
class CTableStore {
public:
    /// Reads the keys that are stored; with bReplace so that their rows can be written.
    CTableStore(CDbConnection& database, std::int64_t nGCSY, const CImportKind& kind, const CImportPart& part,
                bool bReplace);

    /// Whether rows of the key stood in the table at the beginning.
    [[nodiscard]] bool Holds(const std::string& strKey) const { return m_mapStored.contains(strKey); }
    /// Inserts the row, or writes its values over the stored ones of that key. arRow has the kind's columns.
    /// New rows are all in the table after Flush.
    void Put(const std::string& strKey, const std::vector<CDbValue>& arRow);
    void Flush();

private:
    void ReadStored(const CImportKind& kind);
    void Overwrite(const std::vector<std::size_t>& arRows, const std::vector<CDbValue>& arRow);

    CDbConnection& m_database;
    std::string m_strTable;
    std::vector<std::size_t> m_arPlaces; ///< places in a row of what is written: keys first, then values
    std::string m_strColumns;            ///< their names, behind GCSY
    std::size_t m_nKeys = 0;
    std::int64_t m_nGCSY;
    bool m_bReplace;
    std::unique_ptr<CDbCursor> m_pStored;
    std::unordered_map<std::string, std::vector<std::size_t>> m_mapStored; ///< key to rows of m_pStored
    std::unique_ptr<CDbStatement> m_pInsert;
    std::vector<CDbValue> m_arInsert;
};
