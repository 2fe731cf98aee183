#include "drawing/title_fields.h"

#include "data/date_text.h"
#include "drawing/graph_filed.h"
#include "drawing/shared_fields.h"
#include "tests/drawing/title_fields_fixture.h"

namespace {
class TitleFields : public CTitleFieldsTest {};
INSTANTIATE_TEST_SUITE_P(Engines, TitleFields, TestEngines(), TestEngineName);

std::string TodayField() {
    return std::string("[DQRQ]=") + DateText(CTime::GetCurrentTime()).GetString();
}
} // namespace

TEST_P(TitleFields, EndWithPageNumberPageCountAndToday) {
    m_config.Add({.t_peizhi = "[GCMC]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
    EXPECT_EQ(Fields(), (CTexts{"[GCMC]=一号工程", "[YH]=1", "[YS]=1", TodayField()}));
    CStringArray saKeys, saValues;
    saKeys.Add("of before");
    BuildSheetFields("1", "", saKeys, saValues, 3, 12);
    ASSERT_EQ(saKeys.GetSize(), 4);
    EXPECT_EQ(saValues[1], "3");
    EXPECT_EQ(saValues[2], "12");
}

TEST_P(TitleFields, AreFewWithoutAConfiguration) {
    EXPECT_EQ(Fields(), (CTexts{"[YH]=1", "[YS]=1", TodayField()}));
}

TEST_P(TitleFields, StandInTheListsWithoutATableOrAQuery) {
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "", .t_tablefield = "GCMC"});
    m_config.Add({.t_peizhi = "[B]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_type = 2});
    m_config.Add(
        {.t_peizhi = "[C]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_type = 2, .t_hb = 1});
    EXPECT_EQ(Values(), (CTexts{"", "", ""}));
}

TEST_P(TitleFields, StandInTableOrderWhereverTheirQueriesCome) {
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBH"});
    m_config.Add({.t_peizhi = "[B]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_hb = 1});
    m_config.Add({.t_peizhi = "[C]", .t_tablename = "z_g_TuCeng", .t_tablefield = "TCMC", .t_type = 1});
    m_config.Add({.t_peizhi = "[D]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBZ", .t_hb = 1});
    EXPECT_EQ(Values("ZK2"), (CTexts{"G1", "一号工程", "砂", "2"}));
}

TEST_P(TitleFields, ShareAValueUnderOneKeyButForThoseWithAQueryOfTheirOwn) {
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_hb = 1});
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "", .t_tablefield = ""});
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "missing"});
    EXPECT_EQ(Values(), (CTexts{"一号工程", "一号工程", ""}));
}

TEST_P(TitleFields, TakeNoMarkOfTheBoreholeForItsNumberButShowItAsGiven) {
    m_config.Add({.t_peizhi = "[ZKBH]", .t_tablename = "z_g_TuCeng", .t_tablefield = "ZKBH", .t_type = 1});
    m_config.Add({.t_peizhi = "[TC]", .t_tablename = "z_g_TuCeng", .t_tablefield = "TCMC", .t_type = 1});
    EXPECT_EQ(Values("*ZK2*"), (CTexts{"*ZK2*", "砂"}));
    EXPECT_EQ(Values(""), (CTexts{"", ""}));
}

TEST_P(TitleFields, NameTheFileOfTheLaboratory) {
    m_config.Add({.t_peizhi = "[WJBH]", .t_tablename = "x_GongCheng", .t_tablefield = "GCBH"});
    EXPECT_EQ(Values(), CTexts{"G1/土工"});
    Execute("delete from x_GongCheng");
    EXPECT_EQ(Values(), CTexts{"/土工"});
}

TEST_P(TitleFields, AreFoundAnewAtEachUse) {
    m_config.Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC", .t_hb = 1});
    EXPECT_EQ(Values(), CTexts{"一号工程"});
    Execute("update x_GongCheng set GCMC = '新名' where GCSY = 1");
    EXPECT_EQ(Values(), CTexts{"新名"});
    m_config.m_pDatabase->Execute("delete from t_GraphTYPZ");
    EXPECT_EQ(Values(), CTexts());
    EXPECT_TRUE(g_arFields.IsEmpty());
    EXPECT_TRUE(g_mapValues.IsEmpty());
}

TEST_P(TitleFields, OfTwoHundredRowsAreAllFilledBothWays) {
    std::string strColumns = "gcsy integer", strCells = "1";
    for (int i = 0; i < 200; ++i) {
        strColumns += ",c" + std::to_string(i) + " text";
        strCells += ",'值" + std::to_string(i) + "'";
    }
    Execute("create table wide(" + strColumns + ")");
    Execute("insert into wide values(" + strCells + ")");
    CTexts expected;
    for (int i = 0; i < 200; ++i) {
        const std::string strColumn = "c" + std::to_string(i), strKey = "[" + strColumn + "]";
        m_config.Add({.t_peizhi = strKey.c_str(), .t_tablename = "wide", .t_tablefield = strColumn.c_str()});
        expected.push_back("值" + std::to_string(i));
    }
    EXPECT_EQ(Values(), expected);
    m_config.m_pDatabase->Execute("update t_GraphTYPZ set t_hb = 1");
    EXPECT_EQ(Values(), expected);
}
