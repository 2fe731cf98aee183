#include "drawing/single_field.h"

#include "tests/drawing/title_fields_fixture.h"

namespace {
class SingleField : public CTitleFieldsTest {
protected:
    static std::string Value(const CGraphFiled& field, const char* pZKBH = "ZK1") {
        return SingleFieldValue(field, "1", pZKBH).GetString();
    }
    static CGraphFiled Field(const char* pTable, const char* pField, const char* pKey, Adesk::Int32 nType,
                             const char* pKind) {
        CGraphFiled field;
        field.t_tablename = pTable;
        field.t_tablefield = pField;
        field.t_Key = pKey;
        field.t_type = nType;
        field.t_fieldtype = pKind;
        return field;
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, SingleField, TestEngines(), TestEngineName);
} // namespace

TEST_P(SingleField, OfABoreholeTakesItsFurtherCondition) {
    CGraphFiled field = Field("z_g_TuCeng", "TCMC", "TCMC", g_nScopeBorehole, "文本");
    field.t_Where = "and TCHD > 5";
    EXPECT_EQ(Value(field), "粘土");
    EXPECT_EQ(Value(field, "ZK2"), "");
}

TEST_P(SingleField, OfTheProjectTakesNoFurtherCondition) {
    CGraphFiled field = Field("x_GongCheng", "GCMC", "GCMC", g_nScopeProject, "文本");
    field.t_Where = "and GCSY = 2";
    EXPECT_EQ(Value(field), "一号工程");
}

TEST_P(SingleField, AlwaysHasTwoDecimals) {
    CGraphFiled field = Field("z_g_TuCeng", "max(TCHD) as m", "m", g_nScopeProject, "数字");
    field.t_XiaoShu = 4;
    EXPECT_EQ(Value(field), "6.25");
    EXPECT_EQ(Value(Field("z_g_TuCeng", "TCMC", "missing", g_nScopeBorehole, "数字")), "");
}

TEST_P(SingleField, ReadsARealShortlyAsAText) {
    EXPECT_EQ(Value(Field("z_g_TuCeng", "max(TCCDSD) as m", "m", g_nScopeProject, "文本")), "9.5");
}

TEST_P(SingleField, ReadsTheNameOfABlockAsAText) {
    EXPECT_EQ(Value(Field("x_GongCheng", "GCBH", "GCBH", g_nScopeProject, "图块")), "G1");
}

TEST_P(SingleField, PutsTheProjectIntoItsOwnQuery) {
    EXPECT_EQ(Value(Field("z_g_TuCeng", "(select GCMC from x_GongCheng where GCSY = [GCSY]) as n", "n",
                          g_nScopeBorehole, "文本")),
              "一号工程");
    EXPECT_EQ(Value(Field("(select GCBH from x_GongCheng where GCSY = [GCSY]) t", "GCBH", "GCBH", 9, "文本")),
              "G1");
}

TEST_P(SingleField, OfTheConfigurationIsSoughtInTheProjectWithoutACondition) {
    Execute("create table one(a text)");
    Execute("insert into one values('project')");
    m_config.m_pDatabase->Execute("create table one(a text)");
    m_config.m_pDatabase->Execute("insert into one values('configuration')");
    EXPECT_EQ(Value(Field("one", "a", "a", g_nScopeConfig, "文本")), "project");
}

TEST_P(SingleField, JoinsTheLabelsOfAllRows) {
    Execute("create table kinds(gcsy integer, n integer, code text)");
    Execute("insert into kinds values(1,1,'1')");
    Execute("insert into kinds values(1,2,'3')");
    Execute("insert into kinds values(1,3,'1')");
    CGraphFiled field = Field("(select * from kinds order by n) t", "code", "code", 9, "类型拼接");
    field.t_OthInfo = "1|粘土,2|粉土, 3 |砂,4";
    EXPECT_EQ(Value(field), "粘土,砂,粘土");
    Execute("insert into kinds values(1,0,'9')");
    EXPECT_EQ(Value(field), ",粘土,砂,粘土"); // a code without a label keeps its place
    Execute("insert into kinds values(1,4,'9')");
    Execute("insert into kinds values(1,5,'4')");
    EXPECT_EQ(Value(field), ",粘土,砂,粘土"); // but at the end
    field.t_OthInfo = "";
    EXPECT_EQ(Value(field), "");
}

TEST_P(SingleField, IsEmptyWithoutATableOrColumn) {
    EXPECT_EQ(Value(Field("missing", "a", "a", g_nScopeProject, "文本")), "");
    EXPECT_EQ(Value(Field("x_GongCheng", "missing", "missing", g_nScopeProject, "文本")), "");
    EXPECT_EQ(Value(Field("x_GongCheng", "GCMC", "other", g_nScopeProject, "文本")), "");
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_P(SingleField, KeepsAQuoteOfTheBoreholeInsideItsLiteral) {
    EXPECT_EQ(Value(Field("z_g_TuCeng", "TCMC", "TCMC", g_nScopeBorehole, "文本"), "' or '1'='1"), "");
}
