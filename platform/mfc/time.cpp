#include "platform/mfc/time.h"

#include <ctime>

namespace {

std::tm LocalParts(std::int64_t nSeconds) {
    const std::time_t time = nSeconds;
    std::tm parts{};
    localtime_r(&time, &parts);
    return parts;
}

} // namespace

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
