#pragma once

#include <cstdint>

/// A moment, to the second; its parts are local time.
class CTime {
public:
    /// Zero: no time.
    CTime() = default;
    explicit CTime(std::int64_t nSeconds)
        : m_nSeconds(nSeconds) {}

    static CTime GetCurrentTime();

    /// Seconds since the beginning of 1970, universal time.
    std::int64_t GetTime() const { return m_nSeconds; }
    int GetYear() const;
    int GetMonth() const; ///< 1 to 12
    int GetDay() const;   ///< 1 to 31

    bool operator==(const CTime&) const = default;

private:
    std::int64_t m_nSeconds = 0;
};
