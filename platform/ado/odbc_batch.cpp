#include "platform/ado/odbc_batch.h"

#include <algorithm>
#include <utility>

#include "platform/ado/postgresql_dialect.h"

namespace {
constexpr std::size_t g_nMostRows = 200; // more in one go gain nothing
}

COdbcBatch::COdbcBatch(COdbcHandle pLink, std::string strSql)
    : m_pLink(std::move(pLink))
    , m_strSql(std::move(strSql))
    , m_pOne(std::make_unique<COdbcStatement>(m_pLink)) {
    m_pOne->Prepare(m_strSql);
}

void COdbcBatch::Execute(std::span<const CDbValue> arParameters) {
    Flush();
    m_pOne->Run(arParameters);
}

void COdbcBatch::Queue(std::span<const CDbValue> arParameters) {
    if (m_nRowsAtOnce == 0) {
        m_nValues = arParameters.size();
        const std::size_t nFit = m_pLink->Engine().InsertParameters() / std::max<std::size_t>(m_nValues, 1);
        const bool bInsert = nFit > 1 && !InsertOfRows(m_strSql, 2).empty();
        m_nRowsAtOnce = bInsert ? std::min(nFit, g_nMostRows) : 1;
    }
    if (m_nRowsAtOnce == 1) return m_pOne->Run(arParameters);
    m_arQueued.insert(m_arQueued.end(), arParameters.begin(), arParameters.end());
    if (m_arQueued.size() < m_nRowsAtOnce * m_nValues) return;
    if (!m_pMany) {
        m_pMany = std::make_unique<COdbcStatement>(m_pLink);
        m_pMany->Prepare(InsertOfRows(m_strSql, m_nRowsAtOnce));
    }
    const std::vector<CDbValue> arRows = std::exchange(m_arQueued, {});
    m_pMany->Run(arRows);
}

void COdbcBatch::Flush() {
    const std::vector<CDbValue> arRows = std::exchange(m_arQueued, {});
    if (arRows.empty()) return;
    COdbcStatement(m_pLink).Run(InsertOfRows(m_strSql, arRows.size() / m_nValues), arRows);
}
