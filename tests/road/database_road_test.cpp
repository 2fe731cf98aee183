// The road through the real programs on databases of other tools, with odd names, over changes of the project
// and beside other programs.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/windows/descriptor.h"
#include "tests/platform/windows/waited_file.h"
#include "tests/support/programs.h"

namespace {
using CJson = nlohmann::json;

const std::string g_strSet = TERVO_TEST_DATA "/readings/smith-exc4.4/";
constexpr double g_dC = 11.03; // its published cohesion and angle
constexpr double g_dPhi = 17.35;

class DatabaseRoad : public testing::Test {
protected:
    DatabaseRoad() { m_program.Do("init \"$ROOT\""); }

    /// A project of that number and connection with the set's readings of one borehole, running.
    void MakeProject(const std::string& strNumber, const std::string& strConnect = "",
                     const std::string& strHole = "1") const {
        m_program.Do("new --root \"$ROOT\" --number " + strNumber + " --name x --connect \"" + strConnect +
                     "\"");
        Import(strNumber, strHole);
        m_program.Do("open --root \"$ROOT\" --number " + strNumber);
    }
    void Import(const std::string& strNumber, const std::string& strHole) const {
        const CRun run = m_program.Shell(
            "cd '" + g_strSet + "' && for f in samples layers readings; do sed \"2,\\$s/^1,/" + strHole +
            ",/\" $f.csv > \"$ROOT/../$f.csv\"; done; cd \"$ROOT/..\"; "
            "$T import --root root --number " +
            strNumber + " samples.csv layers.csv readings.csv");
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    }
    /// BREN for the one sample of the set, and a dump to FILE of the test's folder.
    std::string Generation(const std::string& strFile, const std::string& strHole = "1") const {
        return "BREN\nselect 1010 " + strHole + "\nselect 1011 1-1\nok\n0,0\nDUMP " + Path(strFile) + "\n";
    }
    void Generate(const std::string& strHole = "1") const {
        const CRun run = m_program.Tvcad(Generation("sheet.json", strHole));
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        EXPECT_EQ(Fields("sheet.json")["m_strZKBH"], strHole) << run.m_strOut;
    }
    CJson Fields(const std::string& strFile) const {
        const CJson dump = CJson::parse(m_program.Folder().Read(strFile), nullptr, false);
        CJson fields; // of the last chart
        for (const CJson& entity : dump.is_object() ? dump["modelSpace"] : CJson::array())
            if (entity["class"] == "CBRENChart") fields = entity["fields"];
        return fields;
    }
    void ExpectStored(const std::string& strNumber, const std::string& strHole = "1") const {
        const CJson rows =
            CJson::parse(m_program.Do("results --root \"$ROOT\" --number " + strNumber + " --json"));
        ASSERT_EQ(rows.size(), 1U);
        EXPECT_EQ(rows[0]["ZKBH"], strHole);
        EXPECT_EQ(rows[0]["CDC"], g_dC);
        EXPECT_EQ(rows[0]["CDF"], g_dPhi);
        EXPECT_FALSE(rows[0]["SYRQ"].is_null());
    }
    std::string Path(const std::string& strName) const { return m_program.Folder().Path(strName); }
    void Sqlite(const std::string& strFile, const std::string& strSql) const {
        const CRun run = m_program.Shell("sqlite3 '" + Path(strFile) + "' < '" +
                                         m_program.Folder().Write("statements.sql", strSql) + "'");
        EXPECT_EQ(run.m_strErrors, "");
        ASSERT_EQ(run.m_nStatus, 0);
    }

    const CProgram m_program;
};

/// The suite's columns as another tool declares them; the first table's kind of declaration is a parameter.
std::string OtherTables(const std::string& strMethods) {
    return strMethods +
           "CREATE TABLE z_c_SanZhouCSXM (gcsy LONG, zkbh CHAR(50), qybh CHAR(50), sjbh BIGINT, shjhxh "
           "NUMERIC, "
           "wy DOUBLE, sygd DOUBLE, syzj NUMERIC(10,4), clhxs SINGLE, gjkxyl FLOAT, clhds DOUBLE, zxbx, jqps "
           "DECIMAL, "
           "kxyl DOUBLE, gjps DOUBLE, jllx BYTE, remark TEXT);\n"
           "CREATE TABLE z_c_QuYang (GCSY, ZKBH, QYBH, QYSD, QYHD, QYHSL, QYLX, QYSY, QYYX);\n"
           "CREATE TABLE z_g_TuCeng (GCSY INT, ZKBH CLOB, TCCDSD DOUBLE, TCHD DOUBLE, TCMC CLOB);\n"
           "CREATE TABLE x_GongCheng (GCSY INTEGER PRIMARY KEY, GCBH TEXT UNIQUE, GCMC TEXT, GCBZ INT, GCSJ "
           "INT);\n"
           "CREATE INDEX other ON z_c_SanZhouCSXM (jllx, wy);\n"
           "INSERT INTO x_GongCheng VALUES (40, 'OTHER', 'made elsewhere', 3, NULL);\n";
}

} // namespace

TEST_F(DatabaseRoad, LeadsThroughADatabaseOfAnotherTool) {
    Sqlite("other.db",
           OtherTables("CREATE TABLE z_c_SanZhou (GCSY NUMERIC, ZKBH NVARCHAR(50), QYBH, SYFF CLOB, SYRQ, "
                       "UUC DOUBLE, UUF, CUC, CUF NUMERIC, CUCE, CUFE, CDC DOUBLE PRECISION, CDF "
                       "DECIMAL(8,2), note);\n"));
    MakeProject("OTHER", "Data Source=" + Path("other.db"));
    EXPECT_NE(m_program.Read("Project.ini").find("GCSY=40\nGCBH=OTHER\nGCMC=made elsewhere\nGCBZ=3\n"),
              std::string::npos);
    Generate();
    ExpectStored("OTHER");
}

TEST_F(DatabaseRoad, KeepsTheCodesOfTextsOfAnotherTool) {
    MakeProject("A");
    // Numbers stored as texts, as a table without types holds them.
    Sqlite("root/Projects/A/project.db",
           "CREATE TABLE t AS SELECT * FROM z_c_SanZhouCSXM; DROP TABLE z_c_SanZhouCSXM;\n"
           "CREATE TABLE z_c_SanZhouCSXM (GCSY, ZKBH, QYBH, SJBH, SHJHXH, WY, SYGD, SYZJ, CLHXS, GJKXYL, "
           "CLHDS, ZXBX, "
           "JQPS, KXYL, GJPS, JLLX);\n"
           "INSERT INTO z_c_SanZhouCSXM SELECT GCSY, ZKBH, QYBH, SJBH, SHJHXH, CAST(WY AS TEXT), CAST(SYGD "
           "AS TEXT), "
           "CAST(SYZJ AS TEXT), CAST(CLHXS AS TEXT), GJKXYL, CAST(CLHDS AS TEXT), ZXBX, JQPS, KXYL, GJPS, "
           "JLLX FROM "
           "t;\n");
    Generate();
    ExpectStored("A");
}

TEST_F(DatabaseRoad, TakesABoreholeWithAnApostrophe) {
    MakeProject("A", "", "ZK1'");
    EXPECT_NE(m_program.Do("list --root \"$ROOT\"").find("ZK1'  1-1"), std::string::npos);
    Generate("ZK1'");
    ExpectStored("A", "ZK1'");
    EXPECT_NE(m_program.Do("results --root \"$ROOT\" --number A --csv").find("\nZK1',1-1,"),
              std::string::npos);
}

TEST_F(DatabaseRoad, StoresOnceAnImportThatHeldTheDatabaseHasEnded) {
    MakeProject("A");
    ASSERT_EQ(mkfifo(Path("held.csv").c_str(), 0600), 0);
    EXPECT_EQ(m_program
                  .Shell("{ $T import --root \"$ROOT\" --number A '" + Path("held.csv") + "' >'" +
                         Path("import.out") + "' 2>&1; mv '" + Path("import.out") + "' '" +
                         Path("import.done") + "'; } & true")
                  .m_nStatus,
              0);
    CDescriptor pipe(open(Path("held.csv").c_str(), O_WRONLY | O_CLOEXEC)); // it holds the lock from here on
    const std::string strScript = m_program.Folder().Write("sheet.scr", Generation("sheet.json"));
    EXPECT_EQ(m_program
                  .Shell("{ '" TERVO_BIN "/tvcad' --root \"$ROOT\" -q -s '" + strScript + "' >'" +
                         Path("cad.out") + "' 2>&1; mv '" + Path("cad.out") + "' '" + Path("cad.done") +
                         "'; } & true")
                  .m_nStatus,
              0);
    const std::string strRows = "ZKBH,TCCDSD,TCHD,TCMC\n2,5,5,x\n";
    EXPECT_EQ(write(pipe.Get(), strRows.data(), strRows.size()), static_cast<ssize_t>(strRows.size()));
    usleep(300000); // the drawing host may have come to its store or not: the outcome is the same
    pipe.Close();
    EXPECT_EQ(WaitedFile(m_program.Folder(), "import.done"), "readings: 0\nsamples: 0\nlayers: 1\n");
    EXPECT_EQ(WaitedFile(m_program.Folder(), "cad.done").find("locked"), std::string::npos);
    ExpectStored("A");
}

TEST_F(DatabaseRoad, GoesOnWithTheProjectThatIsOpenedMeanwhile) {
    MakeProject("B", "", "ZKB");
    MakeProject("A", "", "ZKA");
    CTvcadSession session(m_program);
    session.Say(Generation("first.json", "ZKA"));
    EXPECT_NE(WaitedFile(m_program.Folder(), "first.json"), "");
    m_program.Do("open --root \"$ROOT\" --number B");
    session.Say(Generation("second.json", "ZKB"));
    const std::string strOut = session.End().m_strOut;
    EXPECT_EQ(Fields("first.json")["m_strZKBH"], "ZKA") << strOut;
    EXPECT_EQ(Fields("second.json")["m_strZKBH"], "ZKB") << strOut;
    ExpectStored("A", "ZKA");
    ExpectStored("B", "ZKB");
}

TEST_F(DatabaseRoad, TellsThatTheDatabaseIsAwayAndGoesOnWhenItIsBack) {
    MakeProject("A");
    const std::string strDatabase = m_program.Root() + "/Projects/A/project.db";
    std::filesystem::rename(strDatabase, strDatabase + ".away");
    const CRun run = m_program.Tvcad("BREN\ncancel\n");
    EXPECT_NE(run.m_strOut.find(Utf8(u8"[Tervo] 数据库z_c_SanZhouCSXM打开错误!\n")), std::string::npos)
        << run.m_strOut;
    EXPECT_FALSE(std::filesystem::exists(strDatabase)); // nothing makes an empty one in its place
    std::filesystem::rename(strDatabase + ".away", strDatabase);
    Generate();
    ExpectStored("A");
}

TEST_F(DatabaseRoad, LeadsThroughAFolderWhosePathIsLongerThanASocketsName) {
    const std::string strRoot = Path(std::string(60, 'd') + "/" + std::string(60, 'e'));
    m_program.Do("init '" + strRoot + "'");
    m_program.Do("new --root '" + strRoot + "' --number L --name long");
    m_program.Do("import --root '" + strRoot + "' --number L '" + g_strSet + "samples.csv' '" + g_strSet +
                 "layers.csv' '" + g_strSet + "readings.csv'");
    m_program.Do("open --root '" + strRoot + "' --number L");
    const std::string strScript = m_program.Folder().Write("sheet.scr", Generation("sheet.json"));
    const CRun run =
        m_program.Shell("'" TERVO_BIN "/tvcad' --root '" + strRoot + "' -q -s '" + strScript + "'");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_EQ(Fields("sheet.json")["m_strZKBH"], "1") << run.m_strOut;
    // The data manager got the module's message.
    EXPECT_NE(m_program.Folder()
                  .Read(std::string(60, 'd') + "/" + std::string(60, 'e') + "/datamanager.log")
                  .find(" 2534 1 0\n"),
              std::string::npos);
    m_program.Do("close --root '" + strRoot + "'");
}
