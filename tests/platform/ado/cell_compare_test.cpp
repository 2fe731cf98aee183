#include "platform/ado/cell_compare.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using CText = std::string_view;

bool IsLess(const CDbCell& left, const CDbCell& right, DBTYPE wDeclared = DBTYPE_EMPTY) {
    const bool bBack = CompareCells(right, left, wDeclared) > 0;
    const bool bLess = CompareCells(left, right, wDeclared) < 0;
    EXPECT_EQ(bBack, bLess);
    return bLess;
}

bool IsSame(const CDbCell& left, const CDbCell& right, DBTYPE wDeclared = DBTYPE_EMPTY) {
    return CompareCells(left, right, wDeclared) == 0;
}

} // namespace

TEST(CompareCells, PutsNullThenNumbersThenTextsThenBytes) {
    const std::array<unsigned char, 1> arBytes = {0};
    EXPECT_TRUE(IsLess(std::monostate(), std::int64_t{-5}));
    EXPECT_TRUE(IsLess(9e9, CText("")));
    EXPECT_TRUE(IsLess(CText("z"), std::span<const unsigned char>(arBytes)));
    EXPECT_TRUE(IsSame(std::monostate(), std::monostate()));
}

TEST(CompareCells, ComparesNumbersOfBothKindsByValue) {
    EXPECT_TRUE(IsLess(std::int64_t{2}, 2.5));
    EXPECT_TRUE(IsLess(-0.5, std::int64_t{0}));
    EXPECT_TRUE(IsSame(std::int64_t{2}, 2.0));
    EXPECT_TRUE(IsLess(std::int64_t{9007199254740992}, std::int64_t{9007199254740993}));
}

TEST(CompareCells, ComparesTextsByCodePointWithoutCase) {
    EXPECT_TRUE(IsSame(CText("zk1"), CText("ZK1")));
    EXPECT_TRUE(IsLess(CText("ZK1"), CText("zk10")));
    EXPECT_TRUE(IsLess(CText("丁"), CText("丙"))); // U+4E01 and U+4E19; their bytes lie the other way round
    EXPECT_FALSE(IsSame(CText("\x81\x41"), CText("\x81\x61"))); // trail bytes are no letters
}

TEST(CompareCells, ComparesDatesAsDates) {
    EXPECT_TRUE(IsLess(CText("2024-3-9"), CText("2024-03-10"), DBTYPE_DATE));
    EXPECT_FALSE(IsLess(CText("2024-3-9"), CText("2024-03-10"), DBTYPE_BSTR));
    EXPECT_TRUE(IsLess(CText("2024-03-09"), CText("soon"), DBTYPE_DATE)); // as texts
}

TEST(CompareCells, ComparesBytes) {
    const std::array<unsigned char, 2> arLeft = {1, 2};
    const std::array<unsigned char, 2> arRight = {1, 255};
    EXPECT_TRUE(IsLess(std::span<const unsigned char>(arLeft), std::span<const unsigned char>(arRight)));
    EXPECT_TRUE(IsLess(std::span(arLeft).first(1), std::span<const unsigned char>(arLeft)));
}
