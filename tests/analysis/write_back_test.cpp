#include "chart/chart_entity.h"

#include "tests/support/drawing.h"
#include "tests/support/project.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>

namespace {
/// Makes it noon of a day, by a time zone that lies so far from Greenwich.
class CLocalDay {
public:
    CLocalDay(const CTempFolder& folder, int nYear, int nMonth, int nDay) {
        std::tm noon{};
        noon.tm_year = nYear - 1900;
        noon.tm_mon = nMonth - 1;
        noon.tm_mday = nDay;
        noon.tm_hour = 12;
        setenv("TZ", (":" + folder.Write("zone", Zone(timegm(&noon) - std::time(nullptr)))).c_str(), 1);
        tzset();
    }
    ~CLocalDay() {
        unsetenv("TZ");
        tzset();
    }
    CLocalDay(const CLocalDay&) = delete;
    CLocalDay& operator=(const CLocalDay&) = delete;

private:
    /// A zone file with one type of local time and no change of it.
    static std::string Zone(std::time_t nOffset) {
        std::string strZone("TZif");
        strZone.append(16, '\0');                   // version 1
        for (const int nCount : {0, 0, 0, 0, 1, 2}) // types: one; characters of its name
            strZone.append({0, 0, 0, static_cast<char>(nCount)});
        for (const int nShift : {24, 16, 8, 0})
            strZone += static_cast<char>(nOffset >> nShift);
        return strZone + std::string("\0\0X\0", 4); // no summer time, and the name
    }
};

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
    const CLocalDay day(m_project.m_root, 2024, 3, 7);
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(m_project.Query("SELECT SYRQ FROM z_c_SanZhou"), "2024.3.7");
}

TEST_F(WriteBack, OfAnUnknownMethodStoresTheDateAndNoValue) {
    m_project.AddMethod("ZK1", "1-1", "other");
    m_project.Execute("UPDATE z_c_SanZhou SET UUC=1, UUF=2, CUC=1, CUF=2, CUCE=3, CUFE=4, CDC=5, CDF=6");
    m_chart.m_strSYFF = "other";
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(m_project.Query("SELECT coalesce(UUC, UUF, CUC, CUF, CUCE, CUFE, CDC, CDF, 'none') FROM "
                              "z_c_SanZhou WHERE SYRQ IS NOT NULL"),
              "none");
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

TEST_F(WriteBack, CountsAStoreThatTheDatabaseRefusesAsDone) {
    m_project.AddMethod("ZK1", "1-1", g_pMethodUU);
    m_project.Execute("CREATE TRIGGER refuses BEFORE UPDATE ON z_c_SanZhou BEGIN SELECT RAISE(ABORT, 'no'); "
                      "END");
    m_chart.m_strSYFF = g_pMethodUU;
    EXPECT_EQ(m_chart.StoreAdoptedValues(), 1);
    EXPECT_EQ(m_project.Query("SELECT count(*) FROM z_c_SanZhou WHERE UUC IS NULL"), "1");
    EXPECT_EQ(m_drawing.m_strPrinted, "");
    EXPECT_TRUE(m_project.Boxes().empty());
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

TEST_F(WriteBack, IsRefusedWhereTheProjectIsGone) {
    m_chart.m_strGCBH = "GC-1";
    g_bChartDataChanged = 1;
    EXPECT_EQ(m_chart.CheckProjectForStore(), 0);
    EXPECT_EQ(g_bChartDataChanged, 0);
    g_bChartDataChanged = 1;
    m_project.Execute("drop table x_GongCheng");
    EXPECT_EQ(m_chart.CheckProjectForStore(), 0);
    EXPECT_EQ(g_bChartDataChanged, 0);
    EXPECT_EQ(m_project.Boxes(), (std::vector<std::string>{"打开工点信息数据表中不存在该工程!",
                                                           "不能打开工点信息数据表,请检查数据!"}));
    EXPECT_EQ(m_drawing.m_strPrinted, "\n数据存储失败!\n数据存储失败!");
}
