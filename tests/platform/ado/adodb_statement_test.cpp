#include "platform/ado/adodb_statement.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

class MakeStatementOf : public CDatabaseTest {
protected:
    [[nodiscard]] CStatement Made(const wchar_t* pszText, long nOptions = -1,
                                  std::vector<CDbValue> arParameters = {}) const {
        return MakeStatement(*m_pDatabase, pszText, nOptions, std::move(arParameters));
    }
};

} // namespace

TEST_F(MakeStatementOf, TakesALoneNameForATableUnlessToldThatItIsAText) {
    EXPECT_EQ(Made(L" 表 ").m_strSql, "select * from 表");
    EXPECT_EQ(Made(L"[a b]", adCmdUnknown).m_strSql, "select * from [a b]");
    EXPECT_EQ(Made(L"main.t").m_strSql, "select * from main.t");
    EXPECT_EQ(Made(L"vacuum", adCmdText).m_strSql, "vacuum");
    EXPECT_EQ(Made(L"t where id > 1", adCmdTable).m_strSql, "select * from t where id > 1");
    EXPECT_EQ(Made(L"delete from t").m_strSql, "delete from t");
}

TEST_F(MakeStatementOf, TellsWhetherThereWillBeRows) {
    EXPECT_TRUE(Made(L"t", adCmdTableDirect).m_bGivesRows);
    EXPECT_TRUE(Made(L"/* all */ SELECT 1").m_bGivesRows);
    EXPECT_TRUE(Made(L"(select 1)").m_bGivesRows);
    EXPECT_TRUE(Made(L"pragma table_info(t)").m_bGivesRows);
    EXPECT_TRUE(Made(L"with a as (select 1) select * from a").m_bGivesRows);
    EXPECT_FALSE(Made(L"update t set a = 1").m_bGivesRows);
    EXPECT_FALSE(Made(L"", adCmdText).m_bGivesRows);
}

TEST_F(MakeStatementOf, CountsParameterPlacesOutsideTexts) {
    EXPECT_EQ(Made(L"select '?', [?], ? -- ?", -1, {std::monostate()}).m_arParameters.size(), 1U);
    EXPECT_EQ(CodeOf([&] { (void)Made(L"select ?, ?", -1, {std::monostate()}); }), 0x80040E10U);
    EXPECT_EQ(CodeOf([&] { (void)Made(L"select 1", -1, {std::monostate()}); }), 0x800A0E7CU);
}

TEST_F(MakeStatementOf, RefusesACharacterThatTheCodePageLacks) {
    EXPECT_EQ(CodeOf([&] { (void)Made(L"select '\U0001F600'"); }), 0x80040E21U);
}
