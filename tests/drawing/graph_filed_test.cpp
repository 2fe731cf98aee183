#include "drawing/graph_filed.h"

#include "tests/support/suite_fixture.h"
#include "tests/support/title_config.h"

namespace {
class GraphFiled : public CSuiteTest {};
} // namespace

TEST_F(GraphFiled, IsReadFromTheConfigurationInTableOrder) {
    CTitleConfig config(m_root.Path());
    config.Add({.t_peizhi = "[GCMC]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
    config.Add({.t_peizhi = "[TC]",
                .t_tablename = "z_g_TuCeng",
                .t_tablefield = "max(TCHD) as a",
                .t_type = 1,
                .t_fieldtype = "数字",
                .t_Key = "a",
                .t_XiaoShu = 3,
                .t_Where = "and TCHD > 1",
                .t_hb = 1,
                .t_OthInfo = "1|粘土"});
    ASSERT_EQ(LoadFieldConfig("whatever"), 1);
    ASSERT_EQ(g_arFields.GetSize(), 2);
    EXPECT_EQ(g_arFields[0].t_peizhi, "[GCMC]");
    EXPECT_EQ(g_arFields[0].t_Key, "GCMC"); // the field itself where no key is given
    const CGraphFiled& field = g_arFields[1];
    EXPECT_EQ(field.t_tablename, "z_g_TuCeng");
    EXPECT_EQ(field.t_tablefield, "max(TCHD) as a");
    EXPECT_EQ(field.t_Key, "a");
    EXPECT_EQ(field.t_type, g_nScopeBorehole);
    EXPECT_EQ(field.t_value, "");
    EXPECT_EQ(field.t_fieldtype, "数字");
    EXPECT_EQ(field.t_Where, "and TCHD > 1");
    EXPECT_EQ(field.t_OthInfo, "1|粘土");
    EXPECT_EQ(field.t_hb, 1);
    EXPECT_EQ(field.t_XiaoShu, 3);
    EXPECT_EQ(field.t_LiuBai, 7);
}

TEST_F(GraphFiled, LeavesOutRowsWithoutATableByName) {
    CTitleConfig config(m_root.Path());
    config.Add({.t_peizhi = "[A]", .t_tablename = "NoTable", .t_tablefield = "x"});
    config.Add({.t_peizhi = "[B]", .t_tablename = "", .t_tablefield = "x"});
    LoadFieldConfig("");
    ASSERT_EQ(g_arFields.GetSize(), 1);
    EXPECT_EQ(g_arFields[0].t_peizhi, "[B]");
}

TEST_F(GraphFiled, IsForgottenWhereTheConfigurationCannotBeRead) {
    {
        CTitleConfig config(m_root.Path());
        config.Add({.t_peizhi = "[A]", .t_tablename = "x_GongCheng", .t_tablefield = "GCMC"});
        LoadFieldConfig("");
        ASSERT_EQ(g_arFields.GetSize(), 1);
        config.m_pDatabase->Execute("drop table t_GraphTYPZ");
    }
    EXPECT_EQ(LoadFieldConfig(""), 1);
    EXPECT_TRUE(g_arFields.IsEmpty());
    EXPECT_TRUE(m_arBoxes.empty());
}
