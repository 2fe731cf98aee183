#include "chart/chart_entity.h"

#include "tests/support/drawing.h"
#include "tests/support/project.h"

#include <ctime>
#include <gtest/gtest.h>

namespace {
class WriteBack : public testing::Test {
protected:
    CTestDrawing m_drawing;
    CTestProject m_project;
    CBRENChart m_chart;

    WriteBack() {
        m_chart.m_nGCSY = 1;
        m_chart.m_strZKBH = "ZK1";
        m_chart.m_strQYBH = "1-1";
        m_chart.m_dAdoptC = 12.349;
        m_chart.m_dAdoptPhi = 20.0 / 3.0;
        m_chart.m_dAdoptCEff = -1.239;
        m_chart.m_dAdoptPhiEff = 30.125;
    }
};
} // namespace

TEST_F(WriteBack, StoresRoundedValuesOfTheMethodAndClearsTheOthers) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodUU);
    m_project.Execute("UPDATE z_c_SanZhou SET CUC=1, CUF=2, CUCE=3, CUFE=4, CDC=5, CDF=6");
    m_chart.m_strSYFF = g_pMethodUU;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(std::stof(m_project.Query("SELECT UUC FROM z_c_SanZhou")), 12.35F);
    EXPECT_EQ(std::stof(m_project.Query("SELECT UUF FROM z_c_SanZhou")), 6.67F);
    EXPECT_EQ(m_project.Query(
                  "SELECT count(*) FROM z_c_SanZhou WHERE CUC IS NULL AND CUF IS NULL AND CUCE IS NULL AND "
                  "CUFE IS NULL AND CDC IS NULL AND CDF IS NULL"),
              "1");
}

TEST_F(WriteBack, StoresBothSetsOfAnUndrainedTestAndClearsAnEarlierMethods) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodCU);
    m_project.Execute("UPDATE z_c_SanZhou SET UUC=1, UUF=2, CDC=5, CDF=6");
    m_chart.m_strSYFF = g_pMethodCU;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(
        m_project.Query("SELECT round(CUC,2)||' '||round(CUF,2)||' '||round(CUCE,2)||' '||round(CUFE,2) "
                        "FROM z_c_SanZhou"),
        "12.35 6.67 -1.24 30.12"); // 30.125 is a tie, which "%.2f" gives to the even digit
    EXPECT_EQ(m_project.Query(
                  "SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NULL AND UUF IS NULL AND CDC IS NULL AND "
                  "CDF IS NULL"),
              "1");
}

TEST_F(WriteBack, StoresADrainedTestFromItsTotalFields) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodCD);
    m_chart.m_strSYFF = g_pMethodCD;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(m_project.Query("SELECT round(CDC,2)||' '||round(CDF,2) FROM z_c_SanZhou WHERE UUC IS NULL"),
              "12.35 6.67");
}

TEST_F(WriteBack, WritesTodayWithoutLeadingZeros) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodUU);
    m_chart.m_strSYFF = g_pMethodUU;
    std::tm before{}, after{};
    std::time_t now = std::time(nullptr);
    localtime_r(&now, &before);
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    now = std::time(nullptr);
    localtime_r(&now, &after);
    const auto text = [](const std::tm& day) {
        return std::to_string(day.tm_year + 1900) + '.' + std::to_string(day.tm_mon + 1) + '.' +
               std::to_string(day.tm_mday);
    };
    const std::string strStored = m_project.Query("SELECT SYRQ FROM z_c_SanZhou");
    EXPECT_TRUE(strStored == text(before) || strStored == text(after)) << strStored;
}

TEST_F(WriteBack, KeepsKeysAndMethodAsTheyWere) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodUU);
    m_chart.m_strSYFF = g_pMethodCD; // the chart may differ from what the table says by now
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(m_project.Query("SELECT GCSY||ZKBH||QYBH FROM z_c_SanZhou"), "1ZK11-1");
    EXPECT_EQ(m_project.Query("SELECT length(SYFF) FROM z_c_SanZhou"), "7");
}

TEST_F(WriteBack, FailsWithALineWhenTheSampleHasNoRow) {
    m_chart.m_strSYFF = g_pMethodUU;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n三轴剪切试验表中无对应项!");
}

TEST_F(WriteBack, FailsWithABoxWhenTheTableCannotBeOpened) {
    m_project.Execute("DROP TABLE z_c_SanZhou");
    m_chart.m_strSYFF = g_pMethodUU;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 0);
    EXPECT_EQ(m_project.Boxes(), (std::vector<std::string>{"不能打开三轴剪切试验表!请检查!"}));
}

TEST_F(WriteBack, IsCheckedAgainstTheProjectsNumber) {
    m_project.Execute("insert into x_GongCheng values(1,'GC-1','工程',0,NULL)");
    m_chart.m_strGCBH = "GC-1";
    g_bChartDataChanged = 1;
    EXPECT_EQ(m_chart.CheckProjectForStore(), 1);
    EXPECT_EQ(g_bChartDataChanged, 1);
    EXPECT_EQ(m_drawing.m_strPrinted, "");

    m_project.Execute("update x_GongCheng set GCBH='GC-2'");
    EXPECT_EQ(m_chart.CheckProjectForStore(), 0);
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_EQ(m_project.Boxes(), std::vector<std::string>{"该工程工程编号已被修改,数据无法入库!"});
    EXPECT_EQ(m_drawing.m_strPrinted, "\n数据存储失败!");
}
