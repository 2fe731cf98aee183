#include "drawing/shared_fields.h"

#include "tests/drawing/title_fields_fixture.h"

namespace {
class SharedFields : public CTitleFieldsTest {
protected:
    void Add(CTitleFieldRow row) {
        row.t_hb = 1;
        m_config.Add(row);
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, SharedFields, TestEngines(), TestEngineName);

constexpr const char* g_pNumber = "数字";
} // namespace

TEST_P(SharedFields, OfOneTableComeFromOneQueryWithDecimalsOfTheirOwn) {
    Add({.t_peizhi = "[A]",
         .t_tablename = "z_g_TuCeng",
         .t_tablefield = "TCHD",
         .t_type = 1,
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = 1});
    Add({.t_peizhi = "[B]",
         .t_tablename = "z_g_TuCeng",
         .t_tablefield = "TCCDSD",
         .t_type = 1,
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = 3});
    Add({.t_peizhi = "[C]", .t_tablename = "z_g_TuCeng", .t_tablefield = "TCMC", .t_type = 1});
    EXPECT_EQ(Values("ZK2"), (CTexts{"4.0", "4.000", "砂"}));
}

TEST_P(SharedFields, ReadTheFirstRowAlone) {
    Add({.t_peizhi = "[A]",
         .t_tablename = "(select * from z_g_TuCeng order by TCCDSD desc) t",
         .t_tablefield = "TCMC",
         .t_type = 1});
    EXPECT_EQ(Values(), CTexts{"粘土"});
}

TEST_P(SharedFields, AreRestrictedAsTheFirstOfTheirTableIs) {
    const char* const pLayers = "(select * from z_g_TuCeng order by TCCDSD) t";
    Add({.t_peizhi = "[A]", .t_tablename = pLayers, .t_tablefield = "TCHD", .t_type = 0});
    Add({.t_peizhi = "[B]", .t_tablename = pLayers, .t_tablefield = "TCMC", .t_type = 1});
    EXPECT_EQ(Values("ZK2"), (CTexts{"3.25", "填土"})); // both of the project's first layer
}

TEST_P(SharedFields, OfTheProjectTakeAnyRowOfIt) {
    Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
    Add({.t_peizhi = "[B]",
         .t_tablename = "x_GongCheng",
         .t_tablefield = "GCBZ",
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = 2});
    EXPECT_EQ(Values("no such borehole"), (CTexts{"一号工程", "2.00"}));
}

TEST_P(SharedFields, OfTheConfigurationComeFromItsDatabaseAlone) {
    m_config.m_pDatabase->Execute("create table units(name text)");
    m_config.m_pDatabase->Execute("insert into units values('勘察院')");
    Add({.t_peizhi = "[A]", .t_tablename = "units", .t_tablefield = "name", .t_type = 5});
    Add({.t_peizhi = "[B]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_type = 5});
    EXPECT_EQ(Values(), (CTexts{"勘察院", ""}));
}

TEST_P(SharedFields, OfOtherScopesStandAloneAndUnrestricted) {
    Execute("create table one(a text)");
    Execute("insert into one values('x')");
    Add({.t_peizhi = "[A]", .t_tablename = "one", .t_tablefield = "a", .t_type = 3});
    Add({.t_peizhi = "[B]", .t_tablename = "one", .t_tablefield = "missing", .t_type = 3});
    EXPECT_EQ(Values(), (CTexts{"x", ""})); // the second query fails by itself
}

TEST_P(SharedFields, AreAllEmptyWhereOneOfThemCannotBeRead) {
    Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
    Add({.t_peizhi = "[B]", .t_tablename = "x_GongCheng", .t_tablefield = "missing"});
    EXPECT_EQ(Values(), (CTexts{"", ""}));
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_P(SharedFields, ShowNoNumberForNull) {
    Execute("update x_GongCheng set GCBZ = NULL where GCSY = 1");
    Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBZ", .t_fieldtype = g_pNumber});
    EXPECT_EQ(Values(), CTexts{""});
}

TEST_P(SharedFields, TakeNoDecimalsFromANegativeNumberAndHoldManyInBounds) {
    Add({.t_peizhi = "[A]",
         .t_tablename = "z_g_TuCeng",
         .t_tablefield = "TCHD",
         .t_type = 1,
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = -1});
    Add({.t_peizhi = "[B]",
         .t_tablename = "z_g_TuCeng",
         .t_tablefield = "TCCDSD",
         .t_type = 1,
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = 2000000000});
    EXPECT_EQ(Values("ZK2"), (CTexts{"4", "4." + std::string(99, '0')}));
}

TEST_P(SharedFields, WithASeparatorInAColumnShiftTheKeysBehindIt) {
    Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBH,GCSY"});
    Add({.t_peizhi = "[B]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
    Add({.t_peizhi = "[C]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBH"});
    // The columns are GCBH, GCSY, GCMC, GCBH; the second is no field of its own and is left out.
    EXPECT_EQ(Values(), (CTexts{"G1", "", "一号工程"}));
}

TEST_P(SharedFields, OfOneColumnTakeTheKindOfTheLast) {
    Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBZ"});
    Add({.t_peizhi = "[B]",
         .t_tablename = "x_GongCheng",
         .t_tablefield = "GCBZ",
         .t_fieldtype = g_pNumber,
         .t_XiaoShu = 1});
    EXPECT_EQ(Values(), (CTexts{"2", "2.0"}));
}

TEST_P(SharedFields, KeepAQuoteOfTheBoreholeInsideItsLiteral) {
    Execute("insert into z_g_TuCeng values(1,'K''1',1,1,'淤泥')");
    Add({.t_peizhi = "[A]", .t_tablename = "z_g_TuCeng", .t_tablefield = "TCMC", .t_type = 1});
    EXPECT_EQ(Values("K'1"), CTexts{"淤泥"});
}
