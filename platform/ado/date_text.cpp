#include "platform/ado/date_text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "platform/ado/text.h"

namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days g_dayZero = std::chrono::year(1899) / 12 / 30;
constexpr double g_dFirstDay = -657434;  // 0100-01-01
constexpr double g_dEndOfDays = 2958466; // 10000-01-01
constexpr int g_nSecondsOfDay = 86400;

/// Takes numbers and the signs between them off the front of a text.
class CDateReader {
public:
    explicit CDateReader(std::string_view strText)
        : m_strRest(strText) {}

    /// A number of nMin to nMax digits; -1 where there is none.
    int Number(std::size_t nMin, std::size_t nMax) {
        std::size_t nDigits = 0;
        while (nDigits < nMax && nDigits < m_strRest.size() && IsDigit(m_strRest[nDigits]))
            ++nDigits;
        if (nDigits < nMin) return -1;
        int nValue = 0;
        std::from_chars(m_strRest.data(), m_strRest.data() + nDigits, nValue);
        m_strRest.remove_prefix(nDigits);
        return nValue;
    }
    bool Sign(char c) {
        if (!m_strRest.starts_with(c)) return false;
        m_strRest.remove_prefix(1);
        return true;
    }
    [[nodiscard]] bool AtEnd() const { return m_strRest.empty(); }

private:
    std::string_view m_strRest;
};

/// The part of a day that a time says; nothing where it is no time.
std::optional<double> FractionOfDay(CDateReader* pReader) {
    const int nHour = pReader->Number(1, 2);
    const bool bMinute = pReader->Sign(':');
    const int nMinute = bMinute ? pReader->Number(1, 2) : -1;
    const bool bSecond = pReader->Sign(':');
    const int nSecond = bSecond ? pReader->Number(1, 2) : 0;
    const bool bFraction = pReader->Sign('.');
    const bool bWhole = !bFraction || pReader->Number(1, 9) >= 0; // a variant's date is taken to the second
    if (nHour < 0 || nHour > 23 || nMinute < 0 || nMinute > 59 || nSecond < 0 || nSecond > 59 || !bWhole)
        return std::nullopt;
    return ((nHour * 60.0 + nMinute) * 60.0 + nSecond) / g_nSecondsOfDay;
}

} // namespace

std::optional<double> DaysFromText(std::string_view strText) {
    CDateReader reader(TrimBlanks(strText));
    const int nYear = reader.Number(4, 4);
    const bool bMonth = reader.Sign('-');
    const int nMonth = reader.Number(1, 2);
    const bool bDay = reader.Sign('-');
    const int nDay = reader.Number(1, 2);
    if (nYear < 100 || !bMonth || nMonth < 1 || !bDay || nDay < 1) return std::nullopt;
    const year_month_day date = std::chrono::year(nYear) / nMonth / nDay;
    if (!date.ok()) return std::nullopt;
    const double dDays = static_cast<double>((sys_days(date) - g_dayZero).count());
    if (reader.AtEnd()) return dDays;
    if (!reader.Sign('T') && !reader.Sign(' ')) return std::nullopt;
    const std::optional<double> dFraction = FractionOfDay(&reader);
    if (!dFraction || !reader.AtEnd()) return std::nullopt;
    return dDays < 0 ? dDays - *dFraction : dDays + *dFraction;
}

std::string DateText(double dDays) {
    if (!(dDays > g_dFirstDay - 1 && dDays < g_dEndOfDays)) return {};
    int nDay = static_cast<int>(std::trunc(dDays));
    int nSecond = static_cast<int>(std::lround(std::fabs(dDays - std::trunc(dDays)) * g_nSecondsOfDay));
    if (nSecond == g_nSecondsOfDay) {
        ++nDay;
        nSecond = 0;
    }
    const year_month_day date(g_dayZero + std::chrono::days(nDay));
    std::array<char, 64> szText{};
    std::snprintf(szText.data(), szText.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    std::string strText = szText.data();
    if (nSecond > 0) {
        std::snprintf(szText.data(), szText.size(), " %02d:%02d:%02d", nSecond / 3600, nSecond / 60 % 60,
                      nSecond % 60);
        strText += szText.data();
    }
    return strText;
}
