#include "platform/ado/com_error.h"

#include <gtest/gtest.h>

namespace {

CComError Raised(const CDbError& error) {
    try {
        ADODB::RaiseDbError(error);
    } catch (const CComError& raised) {
        return raised;
    }
}

} // namespace

TEST(ComError, CarriesCodeMeaningSourceAndDescription) {
    const CComError error = Raised(CDbError(DbFailure::Statement, 1, "SQLite", "语句错误"));
    EXPECT_EQ(static_cast<std::uint32_t>(error.Error()), 0x80040E14U);
    EXPECT_EQ(error.ErrorMessage(), "The statement has errors");
    EXPECT_EQ(error.Source(), L"SQLite");
    EXPECT_EQ(error.Description(), L"语句错误");
    EXPECT_STREQ(error.what(), "语句错误");
}

TEST(ComError, HasACodeOfItsOwnForEachFailureOfADatabase) {
    const auto code = [](DbFailure failure) {
        return static_cast<std::uint32_t>(Raised(CDbError(failure, 0, "", "")).Error());
    };
    EXPECT_EQ(code(DbFailure::General), 0x80004005U);
    EXPECT_EQ(code(DbFailure::NoTable), 0x80040E37U);
    EXPECT_EQ(code(DbFailure::Constraint), 0x80040E2FU);
    EXPECT_EQ(code(DbFailure::ReadOnly), 0x800A0CB3U);
    EXPECT_EQ(code(DbFailure::RowGone), 0x80040E23U);
    EXPECT_EQ(code(DbFailure::Locked), 0x80040E31U);
    EXPECT_EQ(code(DbFailure::NotInCodePage), 0x80040E21U);
}

TEST(ComError, SaysTheCodeWhereItHasNoMeaning) {
    EXPECT_EQ(CComError(HResult(0x80041234), L"", L"").ErrorMessage(), "Unknown error 0x80041234");
    EXPECT_EQ(CComError(-1, L"", L"").ErrorMessage(), "Unknown error 0xFFFFFFFF");
}

TEST(RaiseAdoError, DescribesByTheMeaningUnlessTold) {
    try {
        ADODB::RaiseAdoError(ADODB::adErrNoCurrentRecord);
    } catch (const CComError& error) {
        EXPECT_EQ(static_cast<std::uint32_t>(error.Error()), 0x800A0BCDU);
        EXPECT_EQ(error.Description(), L"There is no current record");
    }
    EXPECT_THROW(ADODB::RaiseAdoError(ADODB::adErrObjectClosed, "闭"), CComError);
}

TEST(Raising, GivesTheResultOrTurnsTheError) {
    EXPECT_EQ(ADODB::Raising([] { return 5; }), 5);
    EXPECT_THROW(ADODB::Raising([] { throw CDbError(DbFailure::Locked, 5, "SQLite", "locked"); }), CComError);
}
