// Which rows are shown, in which order, and finding one of them.

#include "data/ado_recordset.h"
#include "platform/windows/code_page.h"

int CADORecordset::FindFrom(long nSkip, const CVariant& start) {
    const auto direction = static_cast<ADODB::SearchDirectionEnum>(m_nSearchDirection);
    bool bFound = false;
    return Leave([&] {
               m_pRecordset->Find(WideFromGbk(m_strFind.View()), nSkip, direction, start);
               bFound = direction == ADODB::adSearchForward ? !m_pRecordset->IsEOF() : !m_pRecordset->IsBOF();
               if (bFound) m_findPosition = m_pRecordset->GetBookmark();
           }) &&
           bFound;
}

int CADORecordset::Find(const CString& strFind, int nSearchDirection) {
    m_strFind = strFind;
    m_nSearchDirection = nSearchDirection;
    return FindFrom(0, {});
}

int CADORecordset::FindFirst(const CString& strFind) {
    return MoveFirst() && Find(strFind);
}

int CADORecordset::FindNext() {
    return FindFrom(1, m_findPosition);
}

int CADORecordset::SetFilter(const CString& strFilter) {
    return Leave([&] { m_pRecordset->PutFilter(WideFromGbk(strFilter.View())); });
}

int CADORecordset::SetSort(const CString& strSort) {
    return Leave([&] { m_pRecordset->PutSort(WideFromGbk(strSort.View())); });
}

int CADORecordset::GetBookmark() {
    return Attempt([&] { m_bookmark = m_pRecordset->GetBookmark(); });
}

int CADORecordset::SetBookmark() {
    return Leave([&] { m_pRecordset->PutBookmark(m_bookmark); });
}
