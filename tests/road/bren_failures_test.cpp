// BREN whose surroundings fail it: no project, no data manager, a database that is away or held, a script
// that ends. What was done before stays, and the run goes on.

#include "tests/platform/ado/locking_process.h"
#include "tests/road/bren_project.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {
const std::string g_strNext = "LINE 0,0 1,1\n";
const std::string g_strNoRows = Utf8(u8"\n数据库z_c_SanZhouCSXM无初始数据!\n");
const std::string g_strNoReadings = Utf8(u8"[Tervo] 数据库z_c_SanZhouCSXM打开有错误!\n");
const std::string g_strNoList = Utf8(u8"[Tervo] 数据库z_c_SanZhouCSXM打开错误!\n");
const std::string g_strRanOut = ": the input ran out before an answer that is still needed\n";
} // namespace

TEST(BrenFailures, WithoutAProjectItSaysSoAndTheNextCommandWorks) {
    const CBrenProject project(g_arOneSample);
    project.m_program.Do("close --root \"$ROOT\"");
    const CRun run = project.Run("SETVAR SDI 1\nBREN\n" + g_strNext + project.Dump());
    EXPECT_EQ(run.m_strOut, Utf8(u8"[Tervo] 请首先启动【数据管理】并打开工程，再重试此功能！\n"));
    EXPECT_EQ(Classes(project.Entities()), "Line");
    const CJson dump = CJson::parse(project.m_program.Folder().Read("dump.json"));
    EXPECT_EQ(dump["sysvars"]["SDI"], 0) << "several drawings, whatever comes of the command";
}

TEST(BrenFailures, WithoutTheDataManagerItSaysSoAndTheNextCommandWorks) {
    const CBrenProject project(g_arOneSample);
    project.m_program.Do("close --root \"$ROOT\"");
    EXPECT_EQ(project.m_program.Shell("sed -i 's/^GCSY=.*/GCSY=1/' \"$ROOT/Project.ini\"").m_nStatus, 0);
    const CRun run = project.Run("BREN\n" + g_strNext + project.Dump());
    EXPECT_EQ(run.m_strOut, Utf8(u8"[Tervo] 请首先启动【数据管理】并打开工程，再重试此功能!\n"));
    EXPECT_EQ(Classes(project.Entities()), "Line");
}

TEST(BrenFailures, ADatabaseThatGoesAwayAtThePointPromptLeavesTheBegunSheetAndComesBack) {
    const CBrenProject project(g_arOneSample);
    CTvcadSession session(project.m_program);
    session.Say("BREN\n" + Selection("1", "1-1"));
    session.AwaitPrompt(g_strPointPrompt);
    std::filesystem::rename(project.DatabasePath(), project.DatabasePath() + ".away");
    session.Say("0,0\n" + project.Dump());
    session.AwaitPrompt("Command: ");
    session.AwaitPrompt("Command: ");
    EXPECT_EQ(Classes(project.Entities()), "BlockReference");
    std::filesystem::rename(project.DatabasePath() + ".away", project.DatabasePath());
    session.Say("BREN\n" + Selection("1", "*1-1") + "0,0\n" + project.Dump());
    const CRun run = session.End();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find(g_strNoReadings + g_strFaultyData), std::string::npos) << run.m_strOut;
    EXPECT_EQ(Classes(project.Entities()), "BlockReference BlockReference CBRENChart Text Text");
    EXPECT_FALSE(project.Results().at(0)["UUC"].is_null());
}

TEST(BrenFailures, ReadingsThatGoAwayBetweenTwoSamplesLeaveTheFirstChartAndItsValues) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}, {"1", "1-3"}});
    project.Sql("CREATE TRIGGER goes AFTER UPDATE ON z_c_SanZhou WHEN new.QYBH = '1-1' BEGIN "
                "DELETE FROM z_c_SanZhouCSXM WHERE QYBH > '1-1'; END");
    const CRun run =
        project.Run("BREN\n" + Selection("1", "1-1 1-2 1-3") + "0,0\n" + g_strNext + project.Dump());
    EXPECT_EQ(run.m_strOut, g_strAllRead + g_strNoRows + g_strFaultyData);
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text BlockReference Line");
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC IS NULL FROM z_c_SanZhou"), "1-1|0\n1-2|1\n1-3|1\n");
    EXPECT_EQ(project.Marks("SYQXGC11"), "1-1@1-2@1-3");
}

TEST(BrenFailures, ATableThatFailsBetweenTwoSamplesLeavesTheFirstChartAndItsValues) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}});
    project.Sql("ALTER TABLE z_c_SanZhouCSXM RENAME TO readings");
    // A number without a positive counterpart, once the first sample's date stands.
    project.Sql(
        "CREATE VIEW z_c_SanZhouCSXM AS SELECT * FROM readings WHERE (SELECT "
        "max(abs(CASE WHEN SYRQ IS NULL THEN 0 ELSE -9223372036854775808 END)) FROM z_c_SanZhou) = 0");
    const CRun run = project.Run("BREN\n" + Selection("1", "1-1 1-2") + "0,0\n" + g_strNext + project.Dump());
    EXPECT_EQ(run.m_strOut, g_strAllRead + g_strNoReadings + g_strFaultyData);
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text BlockReference Line");
    EXPECT_EQ(project.Sql("SELECT QYBH, UUC IS NULL FROM z_c_SanZhou"), "1-1|0\n1-2|1\n");
}

TEST(BrenFailures, ADatabaseHeldByAnotherProgramIsReportedAndWorksOnceItIsFree) {
    const CBrenProject project(g_arOneSample);
    project.SetLockTimeout(50);
    CTvcadSession session(project.m_program);
    {
        const CLockingProcess other(project.DatabasePath());
        session.Say("BREN\ncancel\n"); // the list of samples
        session.AwaitPrompt("Command: ");
        session.AwaitPrompt("Command: ");
    }
    session.Say("BREN\n" + Selection("1", "1-1"));
    session.AwaitPrompt(g_strPointPrompt);
    {
        const CLockingProcess other(project.DatabasePath());
        session.Say("0,0\n"); // the readings of a sample
        session.AwaitPrompt("Command: ");
    }
    session.Say("BREN\n" + Selection("1", "*1-1") + "0,0\n" + project.Dump());
    const CRun run = session.End();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("BREN\n" + g_strNoList), std::string::npos) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("0,0\n" + g_strNoReadings + g_strFaultyData), std::string::npos)
        << run.m_strOut;
    EXPECT_EQ(Classes(project.Entities()), "BlockReference BlockReference CBRENChart Text Text");
    EXPECT_FALSE(project.Results().at(0)["UUC"].is_null());
}

TEST(BrenFailures, AStoreThatAnotherProgramHoldsUpIsToldAndTheChartStays) {
    const CBrenProject project(g_arOneSample);
    project.SetLockTimeout(50);
    const auto pOther = OpenDbConnection("Provider=SQLite;Data Source=" + project.DatabasePath());
    pOther->BeginTransaction(); // in which others read, but do not write
    const CRun run = project.Run("BREN\n" + Selection("1", "1-1") + "0,0\n" + project.Dump());
    pOther->RollbackTransaction();
    EXPECT_EQ(run.m_strOut, g_strAllRead + "z_c_SanZhou 1 1-1: locked by another program, row not stored\n");
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text");
    EXPECT_TRUE(project.Results().at(0)["SYRQ"].is_null());
}

TEST(BrenFailures, ACancelAtThePointPromptLeavesTheMarksAndNothingElse) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"1", "1-2"}});
    const CRun run = project.Run("BREN\n" + Selection("1", "1-1") + "cancel\n" + g_strNext + project.Dump() +
                                 "BREN\nshow\ncancel\n");
    EXPECT_EQ(Classes(project.Entities()), "Line");
    EXPECT_TRUE(project.Results().at(0)["SYRQ"].is_null());
    EXPECT_EQ(project.Marks("SYQXGC11"), "1-1");
    EXPECT_EQ(project.Marks("SYQXGC1"), "(none)");
    EXPECT_EQ(run.m_strOut.find(g_strAllRead), 0U) << run.m_strOut;
    EXPECT_NE(run.m_strOut.find("    \"*1-1\"\n    \"1-2\"\n"), std::string::npos) << run.m_strOut;
}

TEST(BrenFailures, AnEmptyAnswerAtThePointPromptIsNoCancel) {
    const CBrenProject project(g_arOneSample);
    const CRun run = project.Run("BREN\n" + Selection("1", "1-1") + "\n" + project.Dump());
    EXPECT_EQ(Classes(project.Entities()), "BlockReference CBRENChart Text Text");
    EXPECT_EQ(project.Entities()[0]["position"], CJson({0.0, 0.0, 0.0}));
}

TEST(BrenFailures, ACancelledDialogLeavesNothing) {
    const CBrenProject project(g_arOneSample);
    const CRun run = project.Run("BREN\nselect 1011 1-1\ncancel\n" + g_strNext + project.Dump());
    EXPECT_EQ(run.m_strOut, "");
    EXPECT_EQ(Classes(project.Entities()), "Line");
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenFailures, AScriptThatEndsInTheDialogEndsTheRunWithoutAMark) {
    const CBrenProject project(g_arOneSample);
    const CRun run = project.m_program.Tvcad("BREN\nselect 1011 1-1\n");
    EXPECT_EQ(run.m_nStatus, 3);
    EXPECT_NE(run.m_strErrors.find(g_strRanOut), std::string::npos) << run.m_strErrors;
    EXPECT_EQ(run.m_strOut, "");
    EXPECT_EQ(project.Marks("SYQXGC11"), "(none)");
}

TEST(BrenFailures, AScriptThatEndsAtThePointPromptEndsTheRunWithTheMark) {
    const CBrenProject project(g_arOneSample);
    const CRun run = project.m_program.Tvcad("BREN\n" + Selection("1", "1-1"));
    EXPECT_EQ(run.m_nStatus, 3);
    EXPECT_NE(run.m_strErrors.find(g_strRanOut), std::string::npos) << run.m_strErrors;
    EXPECT_EQ(run.m_strOut, g_strAllRead);
    EXPECT_EQ(project.Marks("SYQXGC11"), "1-1");
    EXPECT_TRUE(project.Results().at(0)["SYRQ"].is_null());
}

TEST(BrenFailures, ACancelBeforeAllSamplesLeavesTheirMarks) {
    const CBrenProject project(CSamples{{"1", "1-1"}, {"2", "2-1"}});
    project.Run("BREN\ncheck 1063\nok\ncancel\n" + project.Dump());
    EXPECT_EQ(Classes(project.Entities()), "");
    EXPECT_EQ(project.Marks("SYQXGC1"), Utf8(u8"1@2@BR全部-全部试样"));
    EXPECT_EQ(project.Marks("SYQXGC12"), "2-1");
}
