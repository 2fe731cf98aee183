#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "platform/ado/cursor.h"

namespace ADODB {

enum class RowState : unsigned char {
    Present,
    Deleted, ///< through a recordset of these rows
    Gone,    ///< by another program
};

/// The rows that a recordset and its clones share. They end when their connection closes.
class CRecordsetRows {
public:
    explicit CRecordsetRows(std::unique_ptr<CDbCursor> pCursor)
        : m_pCursor(std::move(pCursor))
        , m_arStates(m_pCursor->RowCount(), RowState::Present) {}

    [[nodiscard]] bool IsOpen() const { return m_pCursor != nullptr; }
    void Drop() { m_pCursor.reset(); }

    /// Only while they are open.
    [[nodiscard]] CDbCursor& Cursor() { return *m_pCursor; }
    [[nodiscard]] RowState State(std::size_t nRow) const { return m_arStates[nRow]; }

    void Insert(const std::vector<CDbChange>& arChanges) {
        m_pCursor->InsertRow(arChanges);
        m_arStates.resize(m_pCursor->RowCount(), RowState::Present);
    }
    void Delete(std::size_t nRow) {
        m_pCursor->DeleteRow(nRow);
        m_arStates[nRow] = RowState::Deleted;
        ++m_nDeletions;
    }
    /// Reads a row anew. False when another program deleted it.
    bool Refresh(std::size_t nRow) {
        const bool bThere = m_pCursor->RefreshRow(nRow);
        m_arStates[nRow] = bThere ? RowState::Present : RowState::Gone;
        return bThere;
    }
    /// How many rows were deleted, so that a view can see that it is behind.
    [[nodiscard]] std::size_t Deletions() const { return m_nDeletions; }

private:
    std::unique_ptr<CDbCursor> m_pCursor;
    std::vector<RowState> m_arStates;
    std::size_t m_nDeletions = 0;
};

} // namespace ADODB
