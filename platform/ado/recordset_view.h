#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "platform/ado/criteria.h"
#include "platform/ado/recordset_rows.h"

namespace ADODB {

/// A column to sort by.
struct CSortKey {
    std::size_t m_nColumn;
    bool m_bDescending = false;
};

/// Which of its rows a recordset shows, in which order, and where it stands among them: before the first, on
/// one, behind the last, or where a row was that has been deleted.
class CRecordsetView {
public:
    CRecordsetView() = default;
    /// Shows all rows and stands on the first.
    explicit CRecordsetView(std::shared_ptr<CRecordsetRows> pRows);

    /// Shows the rows that meet the criteria, in the order of the keys, and stands on the first.
    void Select(const CCriteria& criteria, const std::vector<CSortKey>& arOrder);
    /// Takes in what the sharers of the rows have added and deleted.
    void Sync();

    [[nodiscard]] long Count() const { return static_cast<long>(m_arRows.size()); }
    [[nodiscard]] bool IsBOF() const { return !m_bHole && (m_nAt < 0 || m_arRows.empty()); }
    [[nodiscard]] bool IsEOF() const { return !m_bHole && m_nAt >= Count(); }
    /// The place among the rows shown, from 0; -1 before the first, Count() behind the last.
    [[nodiscard]] long Place() const { return m_nAt; }
    /// The row it stands on; nothing at the ends and where the row was deleted.
    [[nodiscard]] std::optional<std::size_t> Row() const;
    [[nodiscard]] std::size_t RowAt(long nPlace) const { return m_arRows[static_cast<std::size_t>(nPlace)]; }
    /// The place of a row; nothing where it is not shown.
    [[nodiscard]] std::optional<long> PlaceOf(std::size_t nRow) const;

    /// Goes to a place; one beyond the ends is the end.
    void MoveTo(long nPlace);
    /// Goes so many rows on, or back.
    void MoveBy(long nRows);
    /// Shows the newest row, whatever the criteria say, as the last, and goes to it.
    void MoveToNewest();

private:
    std::shared_ptr<CRecordsetRows> m_pRows;
    CCriteria m_criteria;
    std::vector<std::size_t> m_arRows;
    long m_nAt = 0;
    bool m_bHole = false; ///< the row it stood on was deleted; the next one has its place now
    std::size_t m_nRowsSeen = 0;
    std::size_t m_nDeletionsSeen = 0;
};

} // namespace ADODB
