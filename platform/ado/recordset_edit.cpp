#include <algorithm>
#include <utility>

#include "platform/ado/adodb_recordset.h"
#include "platform/ado/variant_value.h"

using namespace ADODB;

namespace {

/// Whether a cell holds this very value, so that there is nothing to store.
bool Holds(const CDbCell& cell, const CDbValue& value) {
    const CDbCell other = CellOf(value);
    if (cell.index() != other.index()) return false;
    if (const auto* pBytes = std::get_if<std::span<const unsigned char>>(&cell))
        return std::ranges::equal(*pBytes, std::get<std::span<const unsigned char>>(other));
    if (const auto* pText = std::get_if<std::string_view>(&cell))
        return *pText == std::get<std::string_view>(other);
    if (const auto* pReal = std::get_if<double>(&cell)) return *pReal == std::get<double>(other);
    const auto* pWhole = std::get_if<std::int64_t>(&cell);
    return !pWhole || *pWhole == std::get<std::int64_t>(other);
}

} // namespace

void Recordset::RequireUpdatable() const {
    if (m_lockType == adLockReadOnly)
        RaiseAdoError(adErrFeatureNotAvailable, "The recordset is opened read-only.");
}

CVariant Recordset::FieldValue(std::size_t nColumn) {
    const DBTYPE wDeclared = Rows().Columns()[nColumn].m_wType;
    const auto given = m_edit.m_mapValues.find(nColumn);
    if (given != m_edit.m_mapValues.end()) return VariantOfCell(CellOf(given->second), wDeclared);
    if (m_edit.m_mode == adEditAdd) return {};
    return VariantOfCell(m_pRows->Cursor().Cell(RequireRow(), nColumn), wDeclared);
}

void Recordset::PutFieldValue(std::size_t nColumn, const CVariant& value) {
    const DBTYPE wDeclared = Rows().Columns()[nColumn].m_wType;
    RequireUpdatable();
    if (m_edit.m_mode != adEditAdd) (void)RequireRow();
    m_edit.m_mapValues[nColumn] = ValueForColumn(value, wDeclared);
    if (m_edit.m_mode == adEditNone) m_edit.m_mode = adEditInProgress;
}

EditModeEnum Recordset::GetEditMode() {
    (void)Rows();
    const bool bDeleted = !m_view.Row() && !m_view.IsBOF() && !m_view.IsEOF();
    return m_edit.m_mode == adEditNone && bDeleted ? adEditDelete : m_edit.m_mode;
}

void Recordset::AddNew() {
    LeaveRow();
    RequireUpdatable();
    m_edit.m_mode = adEditAdd;
}

/// The values given to a new row, or those in which they differ from the row's own.
std::vector<CDbChange> Recordset::Changes(std::optional<std::size_t> nRow) {
    std::vector<CDbChange> arChanges;
    for (const auto& [nColumn, value] : m_edit.m_mapValues)
        if (!nRow || !Holds(m_pRows->Cursor().Cell(*nRow, nColumn), value))
            arChanges.push_back({nColumn, value});
    return arChanges;
}

void Recordset::Update() {
    CDbCursor& cursor = Rows();
    if (m_edit.m_mode == adEditNone) return;
    if (m_edit.m_mode == adEditAdd) {
        const std::size_t nBefore = cursor.RowCount();
        Raising([&] { m_pRows->Insert(Changes(std::nullopt)); });
        m_edit = {};
        if (cursor.RowCount() > nBefore) m_view.MoveToNewest(); // a trigger may have taken it away again
    } else {
        const std::size_t nRow = RequireRow();
        const std::vector<CDbChange> arChanges = Changes(nRow);
        if (!arChanges.empty()) Raising([&] { cursor.UpdateRow(nRow, arChanges); });
        m_edit = {};
    }
    m_fields.EndChunks();
}

void Recordset::CancelUpdate() {
    (void)Rows();
    m_edit = {};
    m_fields.EndChunks();
}

void Recordset::Delete(AffectEnum affect) {
    (void)Rows();
    RequireUpdatable();
    if (m_edit.m_mode == adEditAdd) RaiseAdoError(adErrIllegalOperation, "The new row is not stored yet.");
    std::vector<std::size_t> arRows;
    if (affect == adAffectCurrent) {
        arRows = {RequireRow()};
    } else if (affect == adAffectGroup) {
        for (long i = 0; i < m_view.Count(); ++i)
            arRows.push_back(m_view.RowAt(i));
    } else {
        RaiseAdoError(adErrInvalidArgument);
    }
    CancelUpdate();
    for (const std::size_t nRow : arRows)
        Raising([&] { m_pRows->Delete(nRow); });
    m_view.Sync();
}
