#include "host/datamanager/new_installation.h"

#include <gtest/gtest.h>

#include "tests/support/programs.h"

namespace fs = std::filesystem;

TEST(Init, MakesFoldersIniFilesDatabasesLineTypesAndTemplates) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    for (const char* pszFolder : {"Data", "Projects", "Templates", "Support/Block", "Output"})
        EXPECT_TRUE(fs::is_directory(program.Root() + "/" + pszFolder)) << pszFolder;
    for (const char* pszFile : {"tervo.ini", "Settings.ini", "Marks.ini"})
        EXPECT_TRUE(fs::is_regular_file(program.Root() + "/" + pszFile)) << pszFile;
    const std::string strProject = program.Read("Project.ini");
    EXPECT_NE(strProject.find("[Project]\nGCSY=-1\n"), std::string::npos) << strProject;
    EXPECT_NE(strProject.find("[GLOBAL]\nLOCALVER=4\n"), std::string::npos) << strProject;
    EXPECT_NE(program.Read("tervo.ini").find("CommonDb=Data/common.db\n"), std::string::npos);
    EXPECT_EQ(program.Sql("Data/common.db", "SELECT name FROM pragma_table_info('g_peizhi_people')"),
              "CGT\nKEYCGT\nPEOPLETYPE\nPEOPLENAME\n");
    EXPECT_EQ(program.Sql("Data/config.db", "SELECT name FROM pragma_table_info('g_TervoTempletConfig')"),
              "FileName\nPath\nGCBZ\nFun\nType\n");
    EXPECT_EQ(program.Sql("Data/config.db", "SELECT name FROM pragma_table_info('t_GraphTYPZ')"),
              "t_peizhi\nt_tablename\nt_tablefield\nt_type\nt_fieldtype\nt_Key\nt_XiaoShu\nt_Where\nt_hb\nt_"
              "LiuBai\n"
              "t_OthInfo\n");
    EXPECT_NE(program.Read("Support/acad.lin").find("*Dashed2,"), std::string::npos);
    for (const char* pszDrawing :
         {"Templates/BREN-A4.dwg", "Templates/BREN-A3.dwg", "Support/Block/gltka3.dwg"})
        EXPECT_EQ(program.Read(pszDrawing).substr(0, 6), "AC1015") << pszDrawing;
}

TEST(Init, RefusesAFolderThatHoldsAnInstallation) {
    const CProgram program;
    program.Do("init \"$ROOT\"");
    const std::string strBefore = program.Read("tervo.ini");
    const CRun run = program.Tvdata("init \"$ROOT\"");
    EXPECT_EQ(run.m_nStatus, 1);
    EXPECT_NE(run.m_strErrors.find("already holds an installation"), std::string::npos) << run.m_strErrors;
    EXPECT_EQ(program.Read("tervo.ini"), strBefore);
}

TEST(Init, TakesAFolderThatHoldsOtherFiles) {
    const CProgram program;
    fs::create_directories(program.Root());
    EXPECT_FALSE(program.Folder().Write("root/notes.txt", "kept").empty());
    program.Do("init \"$ROOT\"");
    EXPECT_EQ(program.Read("notes.txt"), "kept");
}

TEST(Init, FailsWhereNothingCanBeMade) {
    const CProgram program;
    EXPECT_FALSE(program.Folder().Write("file", "").empty());
    EXPECT_EQ(program.Tvdata("init \"$ROOT/../file/x\"").m_nStatus, 4);
}
