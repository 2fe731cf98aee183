// Scripts, the status with which the program ends, and what it says on standard error.

#include "tests/host/console/program_run.h"

namespace {

struct CEnding {
    const char* m_szScript;
    int m_nStatus;
    const char* m_szErr;
};

class ExitStatus : public CProgramRun, public testing::WithParamInterface<CEnding> {};

constexpr CEnding g_arEndings[] = {
    {"", 0, ""},
    {"\n \n; only a comment", 0, ""},
    {"cancel\n", 0, ""},
    {"LINES\nERASE\nL\ncancel\nERASE L\n;\nQUIT\nno\n", 0, ""},
    {"LINES\n", 0, "tvcad: Drawing1 was changed and is not saved\n"},
    // the input ran out
    {"ERASE\n", 3, "script:1: the input ran out before an answer that is still needed\n"},
    {"TWOPOINTS 1,2\n", 3, "script:1: the input ran out before an answer that is still needed\n"},
    {"BOXES\n", 3, "script:1: the input ran out before an answer that is still needed\n"},
    {"LINES\nQUIT\n", 3, "script:2: the input ran out before an answer that is still needed\n"},
    // files
    {"DUMP none/a.json\nNOSUCH\n", 4, "script:1: none/a.json cannot be written: No such file or directory\n"},
    {"LOADMODULE none.so\nDOCUMENTS\n", 4, "script:1: module none.so did not load: there is no such file\n"},
    {"LINES\nCLOSE\nyes\nnone/a.dwg\n", 4,
     "script:4: Drawing1 cannot be saved to none/a.dwg: No such file or directory\n"},
    {"OPEN none.dwg\nNOSUCH\n", 4, "script:1: none.dwg cannot be opened: there is no such file\n"},
    {"OPEN .\n", 4, "script:1: . cannot be opened: it is a folder\n"},
    {"OPEN script\n", 4, "script:1: script cannot be opened: the file is neither a DWG nor a DXF drawing\n"},
    {"SAVEAS none/a.dxf\n", 4,
     "script:1: Drawing1 cannot be saved to none/a.dxf: No such file or directory\n"},
    // no such answer
    {"NOSUCH\n", 5, "script:1: unknown command: NOSUCH\n"},
    {"; a comment\n\nNOSUCH\nALSO NONE\n", 5, "script:3: unknown command: NOSUCH\n"},
    {"\"\"\n", 5, "script:1: unknown command: \n"},
    {"'LIST' L\n", 5, "script:1: unknown command: 'LIST'\n"},
    {"LIST \"L\n", 5, "script:1: a quote is not closed\n"},
    {"TWOPOINTS\n1;2\n", 5, "script:2: not a point: 1;2\n"},
    {"TWOPOINTS 1,2 cancel\n", 5, "script:1: not a point: cancel\n"},
    {"REGEN now\n", 5, "script:1: more on the line than the command takes: now\n"},
    {"LIST L\n", 5, "script:1: no entity there: L\n"},
    {"LIST #FFFF\n", 5, "script:1: no entity there: #FFFF\n"},
    {"LIST\n100,100\n", 5, "script:2: no entity there: 100,100\n"},
    {"LIST here\n", 5, "script:1: not an entity (#HANDLE, L or a point): here\n"},
    {"BOXES\nok\n", 5, "script:2: no answer \"ok\" to the box; it takes yes/no/cancel\n"},
    {"SAVEAS a.txt\n", 5, "script:1: no .dwg or .dxf: a.txt\n"},
    {"SAVEAS a.dwg exploded\n", 5, "script:1: only a .dxf is written exploded: a.dwg\n"},
    {"SAVEAS a.dxf whole\n", 5, "script:1: not exploded, which alone may follow the path: whole\n"},
    {"QSAVE\nplan\n", 5, "script:2: no .dwg or .dxf: plan\n"},
    {"ACTIVATE 2\n", 5, "script:1: no such drawing: 2\n"},
    {"CLOSE\nREGEN\n", 5, "script:2: no drawing is open\n"},
    {"SETVAR NOSUCH\n", 5, "script:1: no such variable: NOSUCH\n"},
    {"SETVAR PLOTDPI \"1\"\"50\"\n", 5, "script:1: no value for PLOTDPI: 1\"50\n"},
};

} // namespace

TEST_P(ExitStatus, IsThatOfTheFirstFailureWhichOneLineTells) {
    const CEnding& ending = GetParam();
    const CProgramResult result = RunScript(ending.m_szScript, "-q");
    EXPECT_EQ(result.m_nStatus, ending.m_nStatus) << ending.m_szScript;
    EXPECT_EQ(result.m_strErr, ending.m_szErr) << ending.m_szScript;
}

INSTANTIATE_TEST_SUITE_P(Scripts, ExitStatus, testing::ValuesIn(g_arEndings));

using DialogStatus = CProgramRun;

TEST_F(DialogStatus, IsThreeWhenTheInputRunsOutAndFiveForWhatIsNoneThere) {
    CProgramResult result = RunDocuments("DIALOG\ncheck 14\n");
    EXPECT_EQ(result.m_nStatus, 3);
    EXPECT_EQ(result.m_strErr, "script:2: the input ran out before an answer that is still needed\n");
    for (const char* line : {"click 99", "select 10 none-such", "nonsense"}) {
        result = RunDocuments(std::string("DIALOG\n") + line + "\nok\n");
        EXPECT_EQ(result.m_nStatus, 5);
        EXPECT_TRUE(result.m_strErr.starts_with("script:2: dialog 30: ")) << result.m_strErr;
        EXPECT_EQ(result.m_strOut, "\ndialog closed by 2\n");
    }
    EXPECT_EQ(RunDocuments("DIALOG\ncancel\nSETVAR PLOTDPI\n").m_strOut, "\ndialog closed by 2\n150\n");
}

using UsageStatus = CProgramRun;

TEST_F(UsageStatus, IsTwoForBadUsageAndZeroForHelp) {
    EXPECT_EQ(RunProgram("--nosuch").m_nStatus, 2);
    EXPECT_EQ(RunProgram("-s").m_nStatus, 2);
    const CProgramResult result = RunProgram("--help");
    EXPECT_EQ(result.m_nStatus, 0);
    EXPECT_NE(
        result.m_strOut.find("DOCUMENTS  lists the drawings: number, * for the current one, name, (changed)"),
        std::string::npos);
}
