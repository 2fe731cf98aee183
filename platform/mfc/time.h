#pragma once

#include <chrono>
#include <cstdint>

/// A moment, to the second; its parts are local time.
class CTime {
public:
    /// Zero: no time.
    CTime() = default;
    explicit CTime(std::int64_t nSeconds)
        : m_nSeconds(nSeconds) {}
    /// Local time. A day that the month lacks, 31 at most, counts on into the next month.
    /// CInvalidArgException for a year before FIRST_YEAR, for a month or day of no calendar, and for what has
    /// no time stamp.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    /// The beginning of the day, with the same conditions.
    explicit CTime(std::chrono::year_month_day date);

    static constexpr int FIRST_YEAR = 1900;

    static CTime GetCurrentTime();

    /// Seconds since the beginning of 1970, universal time.
    std::int64_t GetTime() const { return m_nSeconds; }
    int GetYear() const;
    int GetMonth() const; ///< 1 to 12
    int GetDay() const;   ///< 1 to 31
    std::chrono::year_month_day GetDate() const;

    bool operator==(const CTime&) const = default;

private:
    std::int64_t m_nSeconds = 0;
};
