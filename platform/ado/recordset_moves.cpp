#include <cmath>

#include "platform/ado/adodb_recordset.h"

using namespace ADODB;

bool Recordset::IsBOF() {
    (void)Rows();
    return m_edit.m_mode != adEditAdd && m_view.IsBOF();
}

bool Recordset::IsEOF() {
    (void)Rows();
    return m_edit.m_mode != adEditAdd && m_view.IsEOF();
}

std::size_t Recordset::RequireRow() {
    (void)Rows();
    const std::optional<std::size_t> nRow = m_view.Row();
    if (!nRow || m_edit.m_mode == adEditAdd) RaiseAdoError(adErrNoCurrentRecord);
    if (m_pRows->State(*nRow) == RowState::Gone)
        throw CComError(DB_E_DELETEDROW, L"ADODB", L"The row was deleted by another program.");
    return *nRow;
}

void Recordset::RequireBackward() const {
    if (m_cursorType == adOpenForwardOnly)
        RaiseAdoError(adErrFeatureNotAvailable, "The cursor runs forward only.");
}

/// What every move begins with: a row that is being edited is stored.
void Recordset::LeaveRow() {
    (void)Rows();
    Update();
    m_fields.EndChunks();
}

void Recordset::ArriveAt(long nPlace) {
    m_view.MoveTo(nPlace);
    const std::optional<std::size_t> nRow = m_view.Row();
    if (nRow && m_cursorType == adOpenKeyset) Raising([&] { m_pRows->Refresh(*nRow); });
}

void Recordset::MoveFirst() {
    LeaveRow();
    if (m_view.Count() == 0) RaiseAdoError(adErrNoCurrentRecord);
    ArriveAt(0);
}

void Recordset::MoveLast() {
    LeaveRow();
    RequireBackward();
    if (m_view.Count() == 0) RaiseAdoError(adErrNoCurrentRecord);
    ArriveAt(m_view.Count() - 1);
}

void Recordset::MoveNext() {
    Move(1);
}

void Recordset::MovePrevious() {
    Move(-1);
}

void Recordset::Move(long nRows, const CVariant& start) {
    LeaveRow();
    if (nRows < 0) RequireBackward();
    if (start.Type() != VT_EMPTY && start.Type() != VT_ERROR) m_view.MoveTo(PlaceOfStart(start));
    const bool bNothingThere = m_view.IsBOF() && m_view.IsEOF();
    if (bNothingThere || (nRows > 0 && m_view.IsEOF()) || (nRows < 0 && m_view.IsBOF()))
        RaiseAdoError(adErrNoCurrentRecord);
    if (nRows == 0 && !m_view.Row()) return; // stays at an end, or where a row was deleted
    m_view.MoveBy(nRows);
    ArriveAt(m_view.Place());
}

long Recordset::GetAbsolutePosition() {
    (void)Rows();
    if (m_edit.m_mode == adEditAdd) return adPosUnknown;
    if (m_view.IsBOF()) return adPosBOF;
    if (m_view.IsEOF()) return adPosEOF;
    return m_view.Row() ? m_view.Place() + 1 : long{adPosUnknown};
}

void Recordset::PutAbsolutePosition(long nPosition) {
    LeaveRow();
    RequireBackward();
    if (m_view.Count() == 0) RaiseAdoError(adErrNoCurrentRecord);
    if (nPosition < 1 || nPosition > m_view.Count()) RaiseAdoError(adErrInvalidArgument);
    ArriveAt(nPosition - 1);
}

long Recordset::GetRecordCount() {
    (void)Rows();
    return m_cursorType == adOpenForwardOnly ? -1 : m_view.Count();
}

CVariant Recordset::GetBookmark() {
    (void)Rows();
    RequireBackward();
    const std::optional<std::size_t> nRow = m_view.Row();
    if (!nRow || m_edit.m_mode == adEditAdd) RaiseAdoError(adErrNoCurrentRecord);
    return CVariant(static_cast<double>(*nRow + 1)); // a real number, so that it is no BookmarkEnum
}

void Recordset::PutBookmark(const CVariant& bookmark) {
    LeaveRow();
    RequireBackward();
    if (bookmark.Type() != VT_R8) throw CComError(DB_E_BADBOOKMARK, L"ADODB", L"This is no bookmark.");
    ArriveAt(PlaceOfStart(bookmark));
}

/// The place that a bookmark or a BookmarkEnum means.
long Recordset::PlaceOfStart(const CVariant& start) {
    if (start.Type() == VT_R8) {
        const double dNumber = start.R8();
        const bool bWhole = dNumber >= 1 && dNumber <= static_cast<double>(m_pRows->Cursor().RowCount()) &&
                            std::floor(dNumber) == dNumber;
        const std::optional<long> nPlace =
            bWhole ? m_view.PlaceOf(static_cast<std::size_t>(dNumber) - 1) : std::nullopt;
        if (nPlace) return *nPlace;
        throw CComError(DB_E_BADBOOKMARK, L"ADODB", L"No row shown has this bookmark.");
    }
    if (start.Type() != VT_I2 && start.Type() != VT_I4 && start.Type() != VT_INT)
        RaiseAdoError(adErrInvalidArgument);
    switch (start.Type() == VT_I2 ? start.I2() : start.I4()) {
    case adBookmarkCurrent:
        return m_view.Place();
    case adBookmarkFirst:
        return 0;
    case adBookmarkLast:
        return m_view.Count() - 1;
    default:
        RaiseAdoError(adErrInvalidArgument);
    }
}
