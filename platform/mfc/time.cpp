#include "platform/mfc/time.h"

#include <ctime>

#include "platform/mfc/exception.h"

namespace {

std::tm LocalParts(std::int64_t nSeconds) {
    const std::time_t time = nSeconds;
    std::tm parts{};
    localtime_r(&time, &parts);
    return parts;
}

} // namespace

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    if (nYear < FIRST_YEAR || nMonth < 1 || nMonth > 12 || nDay < 1 || nDay > 31)
        throw CInvalidArgException();
    std::tm parts{};
    parts.tm_year = nYear - 1900;
    parts.tm_mon = nMonth - 1;
    parts.tm_mday = nDay;
    parts.tm_hour = nHour;
    parts.tm_min = nMin;
    parts.tm_sec = nSec;
    parts.tm_isdst = -1; // whatever holds on that day
    m_nSeconds = std::mktime(&parts);
    if (m_nSeconds == -1) throw CInvalidArgException();
}

CTime::CTime(std::chrono::year_month_day date)
    : CTime(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())), 0, 0, 0) {}

CTime CTime::GetCurrentTime() {
    return CTime(std::time(nullptr));
}

int CTime::GetYear() const {
    return LocalParts(m_nSeconds).tm_year + 1900;
}

int CTime::GetMonth() const {
    return LocalParts(m_nSeconds).tm_mon + 1;
}

int CTime::GetDay() const {
    return LocalParts(m_nSeconds).tm_mday;
}

std::chrono::year_month_day CTime::GetDate() const {
    const std::tm parts = LocalParts(m_nSeconds);
    return {std::chrono::year(parts.tm_year + 1900),
            std::chrono::month(static_cast<unsigned>(parts.tm_mon + 1)),
            std::chrono::day(static_cast<unsigned>(parts.tm_mday))};
}
