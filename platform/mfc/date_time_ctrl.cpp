#include "platform/mfc/date_time_ctrl.h"

DWORD CDateTimeCtrl::GetTime(CTime& time) const {
    if (!GetControl()) return GDT_ERROR;
    time = CTime(GetControl()->m_date);
    return GDT_VALID;
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTime) {
    if (!GetControl() || !pTime || pTime->GetYear() < CTime::FIRST_YEAR) return FALSE;
    GetControl()->m_date = pTime->GetDate();
    return TRUE;
}
