#include "platform/acad/wide_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

std::wstring Format(const wchar_t* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::wstring text = FormatWideV(format, arguments);
    va_end(arguments);
    return text;
}

} // namespace

TEST(FormatWide, TakesTextsWideAndNarrow) {
    EXPECT_EQ(Format(L"%s|%ls|%hs|%S", L"一", L"二", "三", "四"), L"一|二|三|四");
    EXPECT_EQ(Format(L"[%5s][%-5s][%.2s]", L"应力", L"应力", L"轴向应变"), L"[   应力][应力   ][轴向]");
    EXPECT_EQ(Format(L"%s%hs", static_cast<const wchar_t*>(nullptr), static_cast<const char*>(nullptr)),
              L"(null)(null)");
    EXPECT_EQ(Format(L"%c%3c|", L'土', L'a'), L"土  a|");
}

TEST(FormatWide, WritesNumbersAsPrintfDoes) {
    EXPECT_EQ(Format(L"%d %5d %-5d| %05d %+d %i", 7, 7, 7, 7, 7, -7), L"7     7 7    | 00007 +7 -7");
    EXPECT_EQ(Format(L"%u %x %X %o %#x", 42u, 255, 255, 8, 255), L"42 ff FF 10 0xff");
    EXPECT_EQ(Format(L"%lld %I64d %ld %zu", 1LL << 40, std::int64_t{-5}, 9L, std::size_t{3}),
              L"1099511627776 -5 9 3");
    EXPECT_EQ(Format(L"%f %.2f %8.3f %e %g", 1.5, 2.345, 3.14159, 1234.5, 0.0001),
              L"1.500000 2.35    3.142 1.234500e+03 0.0001");
    EXPECT_EQ(Format(L"%*d|%-*d|%.*f", 4, 1, 4, 2, 1, 2.25), L"   1|2   |2.2");
    EXPECT_EQ(Format(L"100%%"), L"100%");
}

TEST(FormatWide, NeverGivesANanASign) {
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Format(L"%f %.2f %g", nan, std::copysign(nan, -1.0), -nan), L"nan nan nan");
    EXPECT_EQ(Format(L"%f %.1f", inf, -inf), L"inf -inf");
}

TEST(FormatWide, LeavesAFormatThatItDoesNotKnowAsItStands) {
    EXPECT_EQ(Format(L"a%d b%y %d", 1, 2, 3), L"a1 b%y %d");
    EXPECT_EQ(Format(L"end%"), L"end%");
    EXPECT_EQ(Format(L"end%5"), L"end%5");
    EXPECT_EQ(Format(L"%n", nullptr), L"%n");
    EXPECT_EQ(Format(nullptr), L"");
}

TEST(FormatWide, KeepsAWidthWithinReason) {
    EXPECT_EQ(Format(L"%99999999999d", 1).size(), 4096u);
    EXPECT_EQ(Format(L"%*s", std::numeric_limits<int>::min(), L"a").size(), 4096u);
    EXPECT_LE(Format(L"%.99999999f", 1.0).size(), 4098u);
}
