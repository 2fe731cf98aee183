#include "platform/ado/recordset_view.h"

#include <algorithm>
#include <utility>

#include "platform/ado/cell_compare.h"

using namespace ADODB;

namespace {

bool ComesBefore(const CDbCursor& rows, const std::vector<CSortKey>& arOrder, std::size_t nLeft,
                 std::size_t nRight) {
    for (const CSortKey& key : arOrder) {
        const auto order = CompareCells(rows.Cell(nLeft, key.m_nColumn), rows.Cell(nRight, key.m_nColumn),
                                        rows.Columns()[key.m_nColumn].m_wType);
        if (order != 0) return key.m_bDescending ? order > 0 : order < 0;
    }
    return false;
}

} // namespace

CRecordsetView::CRecordsetView(std::shared_ptr<CRecordsetRows> pRows)
    : m_pRows(std::move(pRows)) {
    Select({}, {});
}

void CRecordsetView::Select(const CCriteria& criteria, const std::vector<CSortKey>& arOrder) {
    m_criteria = criteria;
    m_arRows.clear();
    m_nRowsSeen = 0;
    m_nDeletionsSeen = m_pRows->Deletions();
    m_bHole = false;
    Sync();
    std::stable_sort(m_arRows.begin(), m_arRows.end(), [&](std::size_t nLeft, std::size_t nRight) {
        return ComesBefore(m_pRows->Cursor(), arOrder, nLeft, nRight);
    });
    m_nAt = 0;
}

void CRecordsetView::Sync() {
    const CDbCursor& cursor = m_pRows->Cursor();
    const bool bAtEnd = IsEOF();
    if (m_nDeletionsSeen != m_pRows->Deletions()) {
        std::vector<std::size_t> arLeft;
        long nAt = m_nAt;
        for (long i = 0; i < Count(); ++i) {
            const bool bDeleted = m_pRows->State(RowAt(i)) == RowState::Deleted;
            if (!bDeleted) arLeft.push_back(RowAt(i));
            if (bDeleted && i < m_nAt) --nAt;
            if (bDeleted && i == m_nAt) m_bHole = true;
        }
        m_arRows = std::move(arLeft);
        m_nAt = nAt;
        m_nDeletionsSeen = m_pRows->Deletions();
    }
    for (; m_nRowsSeen < cursor.RowCount(); ++m_nRowsSeen)
        if (m_pRows->State(m_nRowsSeen) != RowState::Deleted && m_criteria.Meets(cursor, m_nRowsSeen))
            m_arRows.push_back(m_nRowsSeen);
    if (bAtEnd) m_nAt = Count();
}

std::optional<std::size_t> CRecordsetView::Row() const {
    if (m_bHole || m_nAt < 0 || m_nAt >= Count()) return std::nullopt;
    return RowAt(m_nAt);
}

std::optional<long> CRecordsetView::PlaceOf(std::size_t nRow) const {
    const auto found = std::find(m_arRows.begin(), m_arRows.end(), nRow);
    if (found == m_arRows.end()) return std::nullopt;
    return static_cast<long>(found - m_arRows.begin());
}

void CRecordsetView::MoveTo(long nPlace) {
    m_bHole = false;
    m_nAt = std::clamp(nPlace, -1L, Count());
}

void CRecordsetView::MoveBy(long nRows) {
    const bool bNextIsHere = m_bHole && nRows > 0;
    const long nFar = Count() + 2; // keeps the sum in range
    MoveTo(m_nAt + std::clamp(nRows, -nFar, nFar) - (bNextIsHere ? 1 : 0));
}

void CRecordsetView::MoveToNewest() {
    Sync();
    const std::size_t nNewest = m_nRowsSeen - 1;
    if (m_arRows.empty() || m_arRows.back() != nNewest) m_arRows.push_back(nNewest);
    MoveTo(Count() - 1);
}
