#include "host/datamanager/table_store.h"

#include <array>
#include <cmath>
#include <cstring>

namespace {

/// Appends a key value so that no two lists of values give the same text.
void AppendKey(std::string* pKey, const CImportColumn& column, const CDbValue& value) {
    if (column.m_kind == ColumnKind::Text) {
        const auto* pText = std::get_if<std::string>(&value);
        if (pText) pKey->append(*pText);
        pKey->push_back('\0');
        return;
    }
    std::array<char, sizeof(std::int64_t)> bytes{};
    if (const auto* pWhole = std::get_if<std::int64_t>(&value);
        pWhole && column.m_kind != ColumnKind::Float) {
        std::memcpy(bytes.data(), pWhole, sizeof *pWhole);
    } else {
        const double real = pWhole ? static_cast<double>(*pWhole) : std::get<double>(value);
        const float single = static_cast<float>(real) + 0.0F; // the two zeros are one key
        std::memcpy(bytes.data(), &single, sizeof single);
    }
    pKey->append(bytes.data(), bytes.size());
}

/// Whether the value is a whole number of the column's range that an engine gives as a real one.
bool IsWhole(const CImportColumn& column, double dValue) {
    constexpr double dBeyond = 2147483648.0;
    return column.m_kind != ColumnKind::Float && std::abs(dValue) < dBeyond && dValue == std::trunc(dValue);
}

/// A stored key value; NULL and values of another type than the column's are no key of an import.
bool FromCell(const CImportColumn& column, const CDbCell& cell, CDbValue* pValue) {
    if (const auto* pText = std::get_if<std::string_view>(&cell))
        *pValue = std::string(*pText);
    else if (const auto* pWhole = std::get_if<std::int64_t>(&cell))
        *pValue = *pWhole;
    else if (const auto* pReal = std::get_if<double>(&cell))
        *pValue = IsWhole(column, *pReal) ? CDbValue(static_cast<std::int64_t>(*pReal)) : CDbValue(*pReal);
    else
        return false;
    const bool bText = std::holds_alternative<std::string>(*pValue);
    if (column.m_kind == ColumnKind::Text) return bText;
    return !bText && (column.m_kind == ColumnKind::Float || std::holds_alternative<std::int64_t>(*pValue));
}

} // namespace

std::string ImportKey(const CImportKind& kind, const std::vector<CDbValue>& arRow) {
    std::string strKey;
    for (std::size_t i = 0; i < kind.m_arColumns.size(); ++i)
        if (kind.m_arColumns[i].m_bKey) AppendKey(&strKey, kind.m_arColumns[i], arRow[i]);
    return strKey;
}

CTableStore::CTableStore(CDbConnection& database, std::int64_t nGCSY, const CImportKind& kind,
                         const CImportPart& part, bool bReplace)
    : m_database(database)
    , m_strTable(part.m_pTable->m_strName)
    , m_nGCSY(nGCSY)
    , m_bReplace(bReplace) {
    const auto add = [&](std::size_t nPlace) {
        m_arPlaces.push_back(nPlace);
        if (!m_strColumns.empty()) m_strColumns += ",";
        m_strColumns += kind.m_arColumns[nPlace].m_strName;
    };
    for (std::size_t i = 0; i < kind.m_arColumns.size(); ++i)
        if (kind.m_arColumns[i].m_bKey) add(i);
    m_nKeys = m_arPlaces.size();
    for (const std::string_view strColumn : part.m_arColumns)
        add(static_cast<std::size_t>(kind.FindColumn(strColumn)));
    ReadStored(kind);
}

void CTableStore::ReadStored(const CImportKind& kind) {
    const std::array<CDbValue, 1> arParameters = {m_nGCSY};
    m_pStored =
        m_database.Query("SELECT " + m_strColumns + " FROM " + m_strTable + " WHERE GCSY = ?", arParameters);
    std::vector<CDbValue> arRow(kind.m_arColumns.size());
    for (std::size_t nRow = 0; nRow < m_pStored->RowCount(); ++nRow) {
        bool bKey = true;
        for (std::size_t i = 0; i < m_nKeys && bKey; ++i)
            bKey = FromCell(kind.m_arColumns[m_arPlaces[i]], m_pStored->Cell(nRow, i), &arRow[m_arPlaces[i]]);
        if (bKey) m_mapStored[ImportKey(kind, arRow)].push_back(nRow);
    }
    if (!m_bReplace) m_pStored.reset();
}

void CTableStore::Put(const std::string& strKey, const std::vector<CDbValue>& arRow) {
    if (const auto it = m_mapStored.find(strKey); it != m_mapStored.end()) {
        Overwrite(it->second, arRow);
        return;
    }
    if (!m_pInsert) {
        std::string strMarks = "?";
        for (std::size_t i = 0; i < m_arPlaces.size(); ++i)
            strMarks += ",?";
        m_pInsert = m_database.Prepare("INSERT INTO " + m_strTable + " (GCSY," + m_strColumns + ") VALUES (" +
                                       strMarks + ")");
        m_arInsert.assign(m_arPlaces.size() + 1, CDbValue(m_nGCSY));
    }
    for (std::size_t i = 0; i < m_arPlaces.size(); ++i)
        m_arInsert[i + 1] = arRow[m_arPlaces[i]];
    m_pInsert->Queue(m_arInsert);
}

void CTableStore::Flush() {
    if (m_pInsert) m_pInsert->Flush();
}

void CTableStore::Overwrite(const std::vector<std::size_t>& arRows, const std::vector<CDbValue>& arRow) {
    std::vector<CDbChange> arChanges;
    for (std::size_t i = m_nKeys; i < m_arPlaces.size(); ++i)
        arChanges.push_back({i, arRow[m_arPlaces[i]]});
    for (const std::size_t nRow : arRows)
        m_pStored->UpdateRow(nRow, arChanges);
}
