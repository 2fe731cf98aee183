#include "data/frame_template.h"

#include <filesystem>

#include "data/suite_connections.h"
#include "data/suite_statements.h"
#include "platform/ado/sqlite_provider.h"
#include "tests/support/suite_fixture.h"

namespace {

class FrameTemplate : public CSuiteTest {
protected:
    FrameTemplate() { std::filesystem::create_directory(m_root.Path("Data")); }
    ~FrameTemplate() override { CloseSuiteConnections(); }

    /// A database of the suite with the table of templates; values are those of a row, or empty for none.
    std::shared_ptr<CDbConnection> MakeTemplates(const char* pszDatabase, const std::string& strValues) {
        auto pDatabase = CreateSqliteDatabase(m_root.Path("Data/" + std::string(pszDatabase)));
        pDatabase->Execute("create table g_TervoTempletConfig(FileName text, Path text, GCBZ integer, "
                           "Fun text, Type text)");
        if (!strValues.empty())
            pDatabase->Execute("insert into g_TervoTempletConfig values(" + strValues + ")");
        return pDatabase;
    }
    /// The file that stands in the only row.
    static std::string StoredFile(CDbConnection& database) {
        return CellText(database.Query("select FileName from g_TervoTempletConfig")->Cell(0, 0));
    }
    /// "result file folder" of the chart's template; what is left alone is "before".
    static std::string Got() {
        CString strFile = "before", strFolder = "before";
        const int nResult = GetFrameTemplate(g_pszChartFunction, &strFile, &strFolder);
        return std::to_string(nResult) + " " + strFile.GetString() + " " + strFolder.GetString();
    }
};

constexpr const char* g_pszRow = "'BREN-A4.dwg','\\Templates',-1,'三轴剪试验曲线','图框'";

} // namespace

TEST_F(FrameTemplate, IsTheFileInItsFolderBelowTheRoot) {
    MakeTemplates("config.db", g_pszRow);
    EXPECT_EQ(Got(), "1 BREN-A4.dwg " + m_root.Path() + "\\Templates\\");
}

TEST_F(FrameTemplate, PutsThePathBehindTheRootAsItStands) {
    MakeTemplates("config.db", "'BREN-A4.dwg','Templates',-1,'三轴剪试验曲线','图框'");
    EXPECT_EQ(Got(), "1 BREN-A4.dwg " + m_root.Path() + "Templates\\");
}

TEST_F(FrameTemplate, WithNullColumnsIsEmptyInTheRoot) {
    MakeTemplates("config.db", "NULL,NULL,-1,'三轴剪试验曲线','图框'");
    EXPECT_EQ(Got(), "1  " + m_root.Path() + "\\");
}

TEST_F(FrameTemplate, IsLeftAloneWithoutARowOfItsFunctionStandardAndType) {
    const auto pConfig = MakeTemplates("config.db", "'a.dwg','\\T',-1,'剖面','图框'");
    pConfig->Execute("insert into g_TervoTempletConfig values('b.dwg','\\T',2,'三轴剪试验曲线','图框')");
    pConfig->Execute("insert into g_TervoTempletConfig values('c.dwg','\\T',-1,'三轴剪试验曲线','图例')");
    EXPECT_EQ(Got(), "0 before before");
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(FrameTemplate, IsLeftAloneWithoutTableOrDatabase) {
    EXPECT_EQ(Got(), "0 before before");
    CreateSqliteDatabase(m_root.Path("Data/config.db"))->Execute("create table other(name text)");
    EXPECT_EQ(Got(), "0 before before");
    EXPECT_TRUE(m_arBoxes.empty());
}

TEST_F(FrameTemplate, LeavesNoConnectionOpen) {
    MakeTemplates("config.db", g_pszRow);
    EnsureConnection(SuiteDb_Project);
    EXPECT_EQ(Got().front(), '1');
    EXPECT_FALSE(SuiteConnection(SuiteDb_Config).IsOpen());
    EXPECT_FALSE(SuiteConnection(SuiteDb_Project).IsOpen());
}

TEST_F(FrameTemplate, IsSetOverTheConnectionOfTheCommonDatabase) {
    const auto pConfig = MakeTemplates("config.db", g_pszRow);
    const auto pCommon = MakeTemplates("common.db", g_pszRow);
    EXPECT_EQ(SetFrameTemplate(g_pszChartFunction, "新'.dwg"), 0); // which is not open
    EnsureConnection(SuiteDb_Common);
    EXPECT_EQ(SetFrameTemplate(g_pszChartFunction, "新'.dwg"), 1);
    EXPECT_EQ(StoredFile(*pCommon), "新'.dwg");
    EXPECT_EQ(StoredFile(*pConfig), "BREN-A4.dwg");
}

TEST_F(FrameTemplate, CannotBeSetInACommonDatabaseWithoutTheTable) {
    const auto pConfig = MakeTemplates("config.db", g_pszRow);
    CreateSqliteDatabase(m_root.Path("Data/common.db"))->Execute("create table other(name text)");
    EnsureConnection(SuiteDb_Common);
    EXPECT_EQ(SetFrameTemplate(g_pszChartFunction, "b.dwg"), 0);
    EXPECT_EQ(StoredFile(*pConfig), "BREN-A4.dwg");
}
