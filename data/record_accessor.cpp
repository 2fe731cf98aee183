#include "data/record_accessor.h"

#include <utility>

#include "data/record_connection.h"

CRecordAccessor::CRecordAccessor(const char* pszQuery, std::vector<CColumnBinding> arColumns, void* pRow,
                                 std::size_t nBytes)
    : m_pszQuery(pszQuery)
    , m_arColumns(std::move(arColumns))
    , m_pRow(pRow)
    , m_nRowBytes(nBytes) {}

CString CRecordAccessor::QueryFor(const CString& strCriterion) const {
    CString strQuery;
    strQuery.Format(m_pszQuery, strCriterion.GetString());
    return strQuery;
}

int CRecordAccessor::OpenRows(const CString& strStatement, int nUseCommonDb, int nUpdatable) {
    const CDbSession* pSession = RecordSession(nUseCommonDb ? SuiteDb_Common : SuiteDb_Project);
    if (!pSession) return 0;
    CRowsetProperties properties;
    properties.m_bCanHoldRows = true;
    properties.m_bCanFetchBackwards = true;
    properties.m_bScroll = true;
    if (nUpdatable) {
        properties.m_bChange = true;
        properties.m_nUpdatability = 7; // change, delete and insert
    }
    return m_rows.Open(*pSession, strStatement, properties, m_arColumns, m_pRow, m_nRowBytes);
}

int CRecordAccessor::MoveFirstRow() {
    return m_rows.MoveFirst();
}

int CRecordAccessor::MoveNextRow() {
    return m_rows.MoveNext();
}

int CRecordAccessor::StoreRow() {
    return m_rows.Store();
}

void CRecordAccessor::CloseRows() {
    m_rows.Close();
}
