#include "tests/support/programs.h"

#include <gtest/gtest.h>

TEST(DefaultRows, NameThePeopleOfTheChartWhoseNamesAreToBeFilledIn) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    EXPECT_EQ(program.Sql("Data/common.db", "SELECT DISTINCT CGT, PEOPLENAME FROM g_peizhi_people"),
              Utf8(u8"三轴剪切试验曲线|\n"));
    EXPECT_EQ(program.Sql("Data/common.db", "SELECT KEYCGT, PEOPLETYPE FROM g_peizhi_people"),
              Utf8(u8"[SH]|审核\n[FZR]|项目负责人\n[BZRQ]|日期\n"));
}

TEST(DefaultRows, ConfigureTheFieldsOfTheTitleBlock) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    EXPECT_EQ(program.Sql("Data/config.db", "SELECT t_peizhi FROM t_GraphTYPZ"),
              "[GCMC]\n[GCBH]\n[WJBH]\n[ZKBH]\n[QYSL]\n[ZKSD]\n");
    EXPECT_EQ(program.Sql("Data/config.db",
                          "SELECT t_tablename, t_tablefield, t_type, t_fieldtype, t_hb FROM "
                          "t_GraphTYPZ WHERE t_peizhi = '[GCMC]'"),
              Utf8(u8"x_GongCheng|GCMC|0|文本|1\n"));
}
