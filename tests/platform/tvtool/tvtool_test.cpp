#include "platform/tvtool/tvtool.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "platform/windows/installation_root.h"
#include "tests/platform/utf8_text.h"
#include "tests/temp_folder.h"

namespace {

/// An installation in a folder of the test's own; file names and texts are ASCII unless a test needs others.
class TVToolTest : public testing::Test {
protected:
    void SetUp() override { SetInstallationRoot(m_folder.Path()); }
    void TearDown() override { SetInstallationRoot(""); }

    std::string Root() const { return m_folder.Path(); }
    void Settings(const std::string& lines) const { m_folder.Write("tervo.ini", "[TVTool]\n" + lines); }
    void Project(const std::string& lines) const { m_folder.Write("Project.ini", "[Project]\n" + lines); }

    const CTempFolder m_folder;
};

std::string Path(int (*operation)(char*)) {
    std::array<char, 260> path = {};
    path.fill('#');
    const int result = operation(path.data());
    EXPECT_EQ(result, path[0] ? 1 : 0);
    return path.data();
}

std::string Connect() {
    std::array<char, 1024> connect = {};
    connect.fill('#');
    const int result = TVToolGetProjectConnect(connect.data());
    EXPECT_EQ(result, connect[0] ? 1 : 0);
    return connect.data();
}

std::string Provider() {
    CTVToolDbInfo info = {};
    EXPECT_EQ(TVToolGetDbInfo(&info), 1);
    return info.m_szProvider;
}

} // namespace

TEST_F(TVToolTest, GivesTheDefaultPathsWithoutSettings) {
    EXPECT_EQ(Path(TVToolGetRootPath), Root());
    EXPECT_EQ(Path(TVToolGetProjectIni), Root() + "/Project.ini");
    EXPECT_EQ(Path(TVToolGetSettingsIni), Root() + "/Settings.ini");
    EXPECT_EQ(Path(TVToolGetMarksIni), Root() + "/Marks.ini");
    EXPECT_EQ(Path(TVToolGetCommonDbPath), Root() + "/Data/common.db");
    EXPECT_EQ(Path(TVToolGetConfigDbPath), Root() + "/Data/config.db");
}

TEST_F(TVToolTest, TakesPathsOfTheSettingsRelativeOrAbsolute) {
    std::filesystem::create_directory(m_folder.Path("Db"));
    Settings("ProjectIni=P.ini\nSettingsIni=sub\\S.ini\nMarksIni=/var/M.ini\nCommonDb=DB\\c.db\nConfigDb=\n");
    EXPECT_EQ(Path(TVToolGetProjectIni), Root() + "/P.ini");
    EXPECT_EQ(Path(TVToolGetSettingsIni), Root() + "/sub/S.ini");
    EXPECT_EQ(Path(TVToolGetMarksIni), "/var/M.ini");
    EXPECT_EQ(Path(TVToolGetCommonDbPath), Root() + "/Db/c.db");
    EXPECT_EQ(Path(TVToolGetConfigDbPath), Root() + "/Data/config.db");
}

TEST_F(TVToolTest, HasNoConnectionWithoutAProject) {
    EXPECT_EQ(Connect(), "");
    Project("GCSY=-1\nConnect=Provider=SQLite;Data Source=/x.db\n");
    EXPECT_EQ(Connect(), "");
    Project("Connect=Provider=SQLite;Data Source=/x.db\n");
    EXPECT_EQ(Connect(), "");
    Project("GCSY=3\n");
    EXPECT_EQ(Connect(), "");
}

TEST_F(TVToolTest, TakesProjectNumberZero) {
    Project("GCSY=0\nConnect=Provider=SQLite;Data Source=/x.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=/x.db");
}

TEST_F(TVToolTest, SeeksTheConnectionInOrder) {
    Project("GCSY=1\nDatabase=Projects/GC1/project.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=" + Root() + "/Projects/GC1/project.db");
    EXPECT_EQ(Provider(), "SQLite");
    Settings("Provider=Other\n");
    EXPECT_EQ(Connect(), "Provider=Other;Data Source=" + Root() + "/Projects/GC1/project.db");
    Settings("Provider=Other\nProjectConnect=Provider=ODBC;DSN=all\n");
    EXPECT_EQ(Connect(), "Provider=ODBC;DSN=all");
    EXPECT_EQ(Provider(), "ODBC");
    Project("GCSY=1\nDatabase=/abs/p.db\nConnect=Provider=ODBC;DSN=one\n");
    EXPECT_EQ(Connect(), "Provider=ODBC;DSN=one");
}

TEST_F(TVToolTest, TakesAnAbsoluteDatabase) {
    Project("GCSY=1\nDatabase=/abs/p.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=/abs/p.db");
}

TEST_F(TVToolTest, KnowsTheProviderWithoutAProject) {
    EXPECT_EQ(Provider(), "SQLite");
    Settings("Provider=Microsoft.Jet.OLEDB.4.0\n");
    EXPECT_EQ(Provider(), "Microsoft.Jet.OLEDB.4.0");
}

TEST_F(TVToolTest, MakesAConnectionTextOfAPath) {
    std::array<char, 1024> connect = {};
    EXPECT_EQ(TVToolPathToConnect("/工程/common.db", connect.data()), 1);
    EXPECT_STREQ(connect.data(), "Provider=SQLite;Data Source=/工程/common.db");
    EXPECT_EQ(TVToolPathToConnect("/a;b/c.db", connect.data()), 1);
    EXPECT_STREQ(connect.data(), "Provider=SQLite;Data Source=\"/a;b/c.db\"");
    EXPECT_EQ(TVToolPathToConnect("", connect.data()), 0);
    EXPECT_STREQ(connect.data(), "");
    EXPECT_EQ(TVToolPathToConnect(std::string(1020, 'a').c_str(), connect.data()), 0);
    EXPECT_STREQ(connect.data(), "");
}

TEST_F(TVToolTest, GivesPathsInTheCodePage) {
    std::filesystem::create_directory(m_folder.Path(Utf8(u8"套件")));
    SetInstallationRoot(m_folder.Path(Utf8(u8"套件")));
    EXPECT_EQ(Path(TVToolGetRootPath), m_folder.Path("套件"));
    EXPECT_EQ(Path(TVToolGetMarksIni), m_folder.Path("套件/Marks.ini"));
}

TEST_F(TVToolTest, GivesNoPathThatTheCodePageOrTheBufferCannotHold) {
    std::filesystem::create_directory(m_folder.Path(Utf8(u8"가")));
    SetInstallationRoot(m_folder.Path(Utf8(u8"가")));
    EXPECT_EQ(Path(TVToolGetRootPath), "");
    EXPECT_EQ(Path(TVToolGetProjectIni), "");
    EXPECT_EQ(Connect(), "");
    const std::string deep = m_folder.Path(std::string(250, 'd'));
    std::filesystem::create_directory(deep);
    SetInstallationRoot(deep);
    EXPECT_EQ(Path(TVToolGetRootPath), "");
    EXPECT_EQ(Path(TVToolGetCommonDbPath), "");
}

TEST_F(TVToolTest, HasNoRootWhereThereIsNoFolder) {
    SetInstallationRoot(m_folder.Path("missing"));
    EXPECT_EQ(Path(TVToolGetRootPath), "");
    EXPECT_EQ(Path(TVToolGetSettingsIni), m_folder.Path("missing/Settings.ini"));
}

TEST_F(TVToolTest, TakesTheDefaultOfEachKeyThatIsMissingOrEmpty) {
    for (const char* lines :
         {"", "ProjectIni=\nSettingsIni=\nMarksIni=\nCommonDb=\nConfigDb=\nProjectConnect=\n"
              "Provider=\n"}) {
        Settings(lines);
        EXPECT_EQ(Path(TVToolGetProjectIni), Root() + "/Project.ini");
        EXPECT_EQ(Path(TVToolGetSettingsIni), Root() + "/Settings.ini");
        EXPECT_EQ(Path(TVToolGetMarksIni), Root() + "/Marks.ini");
        EXPECT_EQ(Path(TVToolGetCommonDbPath), Root() + "/Data/common.db");
        EXPECT_EQ(Path(TVToolGetConfigDbPath), Root() + "/Data/config.db");
        Project("GCSY=1\nDatabase=p.db\n");
        EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=" + Root() + "/p.db");
        EXPECT_EQ(Provider(), "SQLite");
    }
}

TEST_F(TVToolTest, HasNoConnectionOfAllProjectsWithoutARunningOne) {
    Settings("ProjectConnect=Provider=ODBC;DSN=all\n");
    EXPECT_EQ(Connect(), "");
    Project("GCSY=-2\n");
    EXPECT_EQ(Connect(), "");
    Project("GCSY=2\n");
    EXPECT_EQ(Connect(), "Provider=ODBC;DSN=all");
}

TEST_F(TVToolTest, PassesOverEmptyTextsOnTheWayToTheConnection) {
    Settings("ProjectConnect=\n");
    Project("GCSY=1\nConnect=\nDatabase=\n");
    EXPECT_EQ(Connect(), "");
    Project("GCSY=1\nConnect=\nDatabase=Projects\\A\\project.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=" + Root() + "/Projects/A/project.db");
}

TEST_F(TVToolTest, ReadsTheProjectIniThatTheSettingsName) {
    std::filesystem::create_directory(m_folder.Path("State"));
    Settings("ProjectIni=state\\P.ini\n");
    Project("GCSY=1\nDatabase=wrong.db\n");
    m_folder.Write("State/p.ini", "[Project]\nGCSY=1\nDatabase=right.db\n");
    EXPECT_EQ(Path(TVToolGetProjectIni), Root() + "/State/p.ini");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=" + Root() + "/right.db");
}

TEST_F(TVToolTest, GivesTextsThatJustFitTheirBuffersAndNoLongerOnes) {
    const std::string begin = "Provider=ODBC;DSN=";
    Project("GCSY=1\nConnect=" + begin + std::string(1023 - begin.size(), 'x') + "\n");
    EXPECT_EQ(Connect().size(), 1023U);
    Project("GCSY=1\nConnect=" + begin + std::string(1024 - begin.size(), 'x') + "\n");
    EXPECT_EQ(Connect(), "");
    Project("GCSY=1\nConnect=" + begin + std::string(5000, 'x') + "\n");
    EXPECT_EQ(Connect(), "");
    const std::string name(259 - Root().size() - 1, 'd');
    Settings("CommonDb=" + name + "\nConfigDb=" + name + "d\n");
    EXPECT_EQ(Path(TVToolGetCommonDbPath), Root() + "/" + name);
    EXPECT_EQ(Path(TVToolGetConfigDbPath), "");
}

TEST_F(TVToolTest, ReadsWhatChangedSinceTheLastCall) {
    Project("GCSY=1\nDatabase=/one.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=/one.db");
    Project("GCSY=1\nDatabase=/two.db\n");
    EXPECT_EQ(Connect(), "Provider=SQLite;Data Source=/two.db");
    Settings("MarksIni=M.ini\n");
    EXPECT_EQ(Path(TVToolGetMarksIni), Root() + "/M.ini");
}

TEST_F(TVToolTest, ReadsSettingsInEitherEncoding) {
    Settings("MarksIni=标记.ini\n");
    EXPECT_EQ(Path(TVToolGetMarksIni), Root() + "/标记.ini");
    m_folder.Write("tervo.ini", "[TVTool]\nMarksIni=" + Utf8(u8"标记.ini") + "\n");
    EXPECT_EQ(Path(TVToolGetMarksIni), Root() + "/标记.ini");
}
