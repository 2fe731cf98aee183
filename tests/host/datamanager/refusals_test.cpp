#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/programs.h"

// What init, new and the choice of a project refuse, and how they say so.

namespace {

void Fails(const CRun& run, int nStatus, const std::string& strErrors) {
    EXPECT_EQ(run.m_nStatus, nStatus);
    EXPECT_EQ(run.m_strErrors, strErrors);
    EXPECT_EQ(run.m_strOut, "");
}

} // namespace

TEST(Refusals, InitRefusesAFolderThatHoldsAnInstallation) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const std::string strBefore = program.Read("Project.ini");
    Fails(program.Tvdata("init \"$ROOT\""), 1,
          "tvdata: " + program.Root() + ": the folder already holds an installation\n");
    EXPECT_EQ(program.Read("Project.ini"), strBefore);
}

TEST(Refusals, InitRefusesAFolderWhoseNameTheCodePageLacks) {
    const CProgram program;
    const CRun run = program.Tvdata(Utf8(u8"init \"$ROOT/../가\""));
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_NE(run.m_strErrors.find(Utf8(u8"\"가\" is not in code page 936")), std::string::npos)
        << run.m_strErrors;
    EXPECT_FALSE(std::filesystem::exists(program.Folder().Path(Utf8(u8"가"))));
}

TEST(Refusals, InitTellsWhyTheFolderCannotBeMade) {
    const CProgram program;
    program.Folder().Write("file", "");
    const CRun run = program.Tvdata("init \"$ROOT/../file/sub\"");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strErrors, "tvdata: " + program.Folder().Path("file/sub/Data") + ": Not a directory\n");
}

TEST(Refusals, InitKeepsFilesThatAreInTheFolder) {
    const CProgram program;
    std::filesystem::create_directory(program.Root());
    program.Folder().Write("root/notes.txt", "mine");
    program.Do("init \"$ROOT\"");
    EXPECT_EQ(program.Read("notes.txt"), "mine");
}

TEST(Refusals, NewRefusesANumberThatDiffersFromAnotherByCaseOnly) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    program.Do(Utf8(u8"new --root \"$ROOT\" --number Gc工程Σ --name x"));
    Fails(program.Tvdata(Utf8(u8"new --root \"$ROOT\" --number gC工程σ --name x")), 1,
          Utf8(u8"tvdata: there is a project Gc工程Σ already\n"));
}

TEST(Refusals, NewRefusesANumberThatCannotNameAFolderByItsReason) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    for (const std::string strNumber :
         {"a/b", "a\\b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b", "a.", " a"}) {
        Fails(program.Tvdata("new --root \"$ROOT\" --name x --number '" + strNumber + "'"), 1,
              "tvdata: \"" + strNumber + "\" cannot be a project number: it names a folder\n");
    }
    EXPECT_TRUE(std::filesystem::is_empty(program.Root() + "/Projects"));
    program.Do("new --root \"$ROOT\" --name x --number \"G'1 (a) #2 @%~\"");
    program.Do("open --root \"$ROOT\" --number \"G'1 (a) #2 @%~\"");
    EXPECT_NE(program.Read("Project.ini").find("GCBH=G'1 (a) #2 @%~\n"), std::string::npos);
}

TEST(Refusals, ProjectIsNamedWhereItIsNotThere) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const std::string strFile = program.Folder().Write("s.csv", "ZKBH,QYBH,SYFF\n");
    for (const std::string strNumber : {"none", "..", "../Data", ""}) {
        std::string strProject = " --root \"$ROOT\" --number '";
        strProject.append(strNumber).append("'");
        std::string strTold = "tvdata: there is no project ";
        strTold.append(strNumber).append(" in ").append(program.Root()).append("\n");
        Fails(program.Tvdata("open" + strProject), 1, strTold);
        Fails(program.Tvdata("results" + strProject), 1, strTold);
        Fails(program.Tvdata("import" + strProject.append(" '").append(strFile).append("'")), 1, strTold);
    }
}

TEST(Refusals, UsageIsToldForWhatTheProgramDoesNotKnow) {
    const CProgram program;
    for (const char* pszArguments :
         {"unknown", "--unknown", "open --root x", "results --number A --csv --json",
          "import --root x --number A", "init a b", "new --number A --name x --standard x"}) {
        const CRun run = program.Tvdata(pszArguments);
        EXPECT_EQ(run.m_nStatus, 2) << pszArguments;
        EXPECT_NE(run.m_strErrors, "") << pszArguments;
        EXPECT_EQ(run.m_strOut, "") << pszArguments;
    }
    const std::string strHelp = program.Do("--help");
    for (const char* pszCall : {"init", "new", "import", "open", "close", "list", "results"})
        EXPECT_NE(strHelp.find(pszCall), std::string::npos) << pszCall;
}
