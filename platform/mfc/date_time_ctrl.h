#pragma once

#include "platform/mfc/time.h"
#include "platform/mfc/window.h"

/// What GetTime of a date field answers.
inline constexpr DWORD GDT_VALID = 0;
inline constexpr DWORD GDT_ERROR = 0xFFFFFFFF;

/// A field that shows a date, from CTime::FIRST_YEAR on; it keeps no time of the day.
class CDateTimeCtrl : public CWnd {
public:
    /// Gives the beginning of the day shown. GDT_ERROR, and nothing changes, while there is no window.
    DWORD GetTime(CTime& time) const;
    /// Shows the day of the time. Zero, and nothing changes, for null and for a time before FIRST_YEAR.
    BOOL SetTime(const CTime* pTime);
};
