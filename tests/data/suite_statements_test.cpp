#include "data/suite_statements.h"

#include <gtest/gtest.h>

#include "platform/ado/provider.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/temp_folder.h"

namespace {

class SuiteStatements : public testing::Test {
protected:
    SuiteStatements() {
        m_pDatabase->Execute(
            "CREATE TABLE g_TervoTempletConfig (FileName text, Path text, GCBZ integer, Fun text, "
            "Type text)");
        m_pDatabase->Execute(
            "INSERT INTO g_TervoTempletConfig VALUES ('A4.dwg', 'Templates', -1, "
            "'三轴剪试验曲线', '图框'), ('A3.dwg', 'Templates', 2, '三轴剪试验曲线', '图框')");
    }
    std::string Template() {
        const auto pRows = m_pDatabase->Query(FrameTemplateQuery(g_pszChartFunction).GetString());
        std::string strText;
        for (std::size_t i = 0; i < pRows->RowCount(); ++i)
            strText += CellText(pRows->Cell(i, 1)) + "\\" + CellText(pRows->Cell(i, 0)) + " ";
        return strText;
    }

    CTempFolder m_folder;
    std::shared_ptr<CDbConnection> m_pDatabase = CreateSqliteDatabase(m_folder.Path("config.db"));
};

} // namespace

TEST_F(SuiteStatements, FindAndSetTheFrameTemplateOfTheChart) {
    EXPECT_EQ(Template(), "Templates\\A4.dwg ");
    EXPECT_EQ(m_pDatabase->Execute(SetFrameTemplateStatement("it's.dwg", g_pszChartFunction).GetString()), 1);
    EXPECT_EQ(Template(), "Templates\\it's.dwg ");
}

TEST_F(SuiteStatements, ReadPeopleByDrawingClass) {
    m_pDatabase->Execute(
        "CREATE TABLE g_peizhi_people (CGT text, KEYCGT text, PEOPLETYPE text, PEOPLENAME text)");
    m_pDatabase->Execute("INSERT INTO g_peizhi_people VALUES ('室内''曲线', 'ZT', '制图', '张三'), "
                         "('室内''曲线', 'RQ', '日期', '2024.3.9'), ('剖面', 'ZT', '制图', '李四')");
    EXPECT_EQ(m_pDatabase->Query(PeopleQuery("室内'曲线").GetString())->RowCount(), 2U);
    EXPECT_EQ(m_pDatabase->Query(DrawingClassesQuery().GetString())->RowCount(), 2U);
}

TEST_F(SuiteStatements, LeaveOutTitleFieldsThatComeFromNoTable) {
    m_pDatabase->Execute("CREATE TABLE t_GraphTYPZ (t_peizhi text, t_tablename text)");
    m_pDatabase->Execute("INSERT INTO t_GraphTYPZ VALUES ('a', 'x_GongCheng'), ('b', 'NoTable')");
    EXPECT_EQ(m_pDatabase->Query(TitleFieldsQuery().GetString())->RowCount(), 1U);
}
