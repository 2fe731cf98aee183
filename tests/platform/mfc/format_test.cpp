#include "platform/mfc/format.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>

TEST(FormatText, WritesANumberThatIsNoneWithoutSign) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FormatText("%f", nan), "nan");
    EXPECT_EQ(FormatText("%.1f|%g|%e", -nan, std::copysign(nan, -1.0), -std::fabs(nan)), "nan|nan|nan");
    EXPECT_EQ(FormatText("%6.2lf", std::copysign(nan, -1.0)), "   nan");
    EXPECT_EQ(FormatText("%Lf", std::copysign(std::numeric_limits<long double>::quiet_NaN(), -1.0L)), "nan");
    EXPECT_EQ(FormatText("%f", -std::numeric_limits<double>::infinity()), "-inf");
}

TEST(FormatText, KeepsTextsThatReadLikeANumberThatIsNone) {
    EXPECT_EQ(FormatText("%s -nan", "-nan"), "-nan -nan");
}

TEST(FormatText, TakesEveryConversion) {
    EXPECT_EQ(FormatText("%d %5i|%-4u|%o %x %X %c%%", -3, 42, 7U, 8U, 255U, 255U, 'z'),
              "-3    42|7   |10 ff FF z%");
    EXPECT_EQ(FormatText("%ld %lld %zu %hd %hhd %jd", 1L, -5000000000LL, sizeof(int), static_cast<short>(7),
                         static_cast<signed char>(-1), static_cast<std::intmax_t>(9)),
              "1 -5000000000 4 7 -1 9");
    EXPECT_EQ(FormatText("%+.3f|%08.2f|%.0f|%g|%a", 1.5, -2.25, 2.5, 1e-5, 1.0),
              "+1.500|-0002.25|2|1e-05|0x1p+0");
    EXPECT_EQ(FormatText("%*d|%-*d|%.*f", 4, 7, 3, 7, 1, 2.26), "   7|7  |2.3");
    EXPECT_EQ(FormatText("%p", static_cast<void*>(nullptr)), "(nil)");
}

TEST(FormatText, NamesATextThatIsNone) {
    const char* pszNone = nullptr;
    const wchar_t* pszWideNone = nullptr;
    EXPECT_EQ(FormatText("%s|%ls", pszNone, pszWideNone), "(null)|(null)");
}

TEST(FormatText, CountsWidthAndPrecisionOfTextsInBytes) {
    EXPECT_EQ(FormatText("[%6s]", "固结"), "[  固结]");
    EXPECT_EQ(FormatText("[%.4s]", "固结度"), "[固结]");
    EXPECT_EQ(FormatText("第%d组：%s", 3, "【σ】"), "第3组：【σ】");
}

TEST(FormatText, GivesWideTextInTheCodePage) {
    EXPECT_EQ(FormatText("%ls!", L"固结"), "固结!");
}

TEST(FormatText, WritesAPointWhateverTheLocaleIs) {
    const char* locale =
        std::setlocale(LC_ALL, "de_DE.UTF-8"); // where it is not installed the rest still holds
    EXPECT_EQ(FormatText("%.2f", 1.25), "1.25");
    if (locale) std::setlocale(LC_ALL, "C");
}
