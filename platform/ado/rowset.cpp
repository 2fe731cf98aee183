#include "platform/ado/rowset.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "platform/ado/binding.h"
#include "platform/ado/error.h"
#include "platform/ado/provider.h"
#include "platform/ado/report.h"
#include "platform/windows/code_page.h"

int CDbDataSource::Initialize(const wchar_t* pszConnection) {
    Release();
    try {
        m_pConnection = OpenDbConnection(GbkFromWide(pszConnection));
        return 1;
    } catch (const std::exception& error) {
        m_strLastError = error.what();
        return 0;
    }
}

void CDbDataSource::Release() {
    m_pConnection.reset();
}

int CDbSession::Open(const CDbDataSource& source) {
    m_pConnection = source.m_pConnection;
    return m_pConnection ? 1 : 0;
}

void CDbSession::Release() {
    m_pConnection.reset();
}

CDbRowset::CDbRowset() = default;
CDbRowset::~CDbRowset() = default;

int CDbRowset::Open(const CDbSession& session, const char* pszSql, const CRowsetProperties& properties,
                    std::vector<CColumnBinding> arBindings, void* pBuffer, std::size_t nBytes) {
    Close();
    if (!session.m_pConnection) return 0;
    try {
        std::unique_ptr<CDbCursor> pCursor = session.m_pConnection->Query(pszSql);
        for (const CColumnBinding& binding : arBindings)
            if (static_cast<std::size_t>(binding.m_nOrdinal) > pCursor->Columns().size())
                throw CDbError(DbFailure::General, 0, "Rowset", "The result has too few columns.");
        m_arFetched.assign(nBytes, 0);
        m_arBindings = std::move(arBindings);
        m_pBuffer = static_cast<unsigned char*>(pBuffer);
        m_bChange = properties.m_bChange && (properties.m_nUpdatability & 1) != 0;
        m_pCursor = std::move(pCursor);
        return 1;
    } catch (const CDbError& error) {
        m_strLastError = error.what();
        if (error.Failure() == DbFailure::NotInCodePage) ReportLine(m_strLastError);
    } catch (const std::exception& error) {
        m_strLastError = error.what();
    }
    return 0;
}

int CDbRowset::Fetch(std::size_t nRow) {
    if (!m_pCursor) return g_nRowsetFailed;
    m_nRow = std::min(nRow, m_pCursor->RowCount());
    m_bOnRow = m_nRow < m_pCursor->RowCount();
    if (!m_bOnRow) return g_nRowsetEnd;
    for (const CColumnBinding& binding : m_arBindings)
        FetchCell(m_pCursor->Cell(m_nRow, static_cast<std::size_t>(binding.m_nOrdinal) - 1), binding,
                  m_pBuffer);
    std::copy_n(m_pBuffer, m_arFetched.size(), m_arFetched.begin());
    return g_nRowsetOk;
}

int CDbRowset::MoveFirst() {
    return Fetch(0);
}

int CDbRowset::MoveNext() {
    return Fetch(m_bOnRow ? m_nRow + 1 : m_nRow);
}

int CDbRowset::Store() {
    if (!m_pCursor || !m_bOnRow || !m_bChange) return g_nRowsetFailed;
    try {
        std::vector<CDbChange> arChanges;
        for (const CColumnBinding& binding : m_arBindings)
            if (BoundValueDiffers(binding, m_pBuffer, m_arFetched.data()))
                arChanges.push_back(
                    {static_cast<std::size_t>(binding.m_nOrdinal) - 1, BoundValue(binding, m_pBuffer)});
        if (!arChanges.empty()) m_pCursor->UpdateRow(m_nRow, arChanges);
        std::copy_n(m_pBuffer, m_arFetched.size(), m_arFetched.begin());
        return g_nRowsetOk;
    } catch (const std::exception& error) {
        m_strLastError = error.what();
        return g_nRowsetFailed;
    }
}

void CDbRowset::Close() {
    m_pCursor.reset();
    m_arBindings.clear();
    m_bOnRow = false;
    m_nRow = 0;
}
