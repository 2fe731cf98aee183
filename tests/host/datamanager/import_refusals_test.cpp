#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/programs.h"

// Each refusal of an import as the program prints it, and that nothing comes in with it.

namespace {

const std::string g_strReadingHeader =
    "ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,GJPS,JLLX\n";
const std::string g_strLayerHeader = "ZKBH,TCCDSD,TCHD,TCMC\n";

class ImportRefusals : public testing::Test {
protected:
    ImportRefusals() {
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number A --name x");
    }

    /// Runs an import of these texts, as 1.csv, 2.csv, ... of the current folder.
    CRun Run(const std::vector<std::string>& arTexts, const std::string& strOptions = "") const {
        std::string strFiles;
        for (std::size_t i = 0; i < arTexts.size(); ++i) {
            const std::string strName = std::to_string(i + 1) + ".csv";
            m_program.Folder().Write(strName, arTexts[i]);
            strFiles += " " + strName;
        }
        return m_program.Shell("cd \"$ROOT/..\" && $T import --root root --number A " + strOptions +
                               strFiles);
    }
    /// These files are refused with exactly these lines, and the project stays as it is.
    void Refuses(const std::vector<std::string>& arTexts, const std::string& strLines,
                 const std::string& strOptions = "") const {
        const std::string strBefore = Stored();
        const CRun run = Run(arTexts, strOptions);
        EXPECT_EQ(run.m_nStatus, 1) << strLines;
        EXPECT_EQ(run.m_strOut, "") << strLines;
        EXPECT_EQ(run.m_strErrors, strLines);
        EXPECT_EQ(Stored(), strBefore) << strLines;
    }
    void Takes(const std::vector<std::string>& arTexts, const std::string& strOptions = "") const {
        const CRun run = Run(arTexts, strOptions);
        EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
        EXPECT_EQ(run.m_strErrors, "");
    }
    std::string Stored() const {
        std::string strAll;
        for (const char* pszTable : {"z_c_SanZhou", "z_c_SanZhouCSXM", "z_c_QuYang", "z_g_TuCeng"})
            strAll += m_program.Sql("Projects/A/project.db", std::string("SELECT * FROM ") + pszTable) + "\n";
        return strAll;
    }
    /// A reading whose column at nPlace (from 0) has this text.
    static std::string Reading(std::size_t nPlace, const std::string& strText) {
        std::vector<std::string> arFields = {"ZK1", "1-1", "1", "1", "50", "80", "39.1", "1",
                                             "0",   "1",   "2", "0", "0",  "0",  "2"};
        arFields[nPlace] = strText;
        std::string strLine = g_strReadingHeader;
        for (std::size_t i = 0; i < arFields.size(); ++i)
            strLine += (i ? "," : "") + arFields[i];
        return strLine + "\n";
    }

    const CProgram m_program;
};

constexpr std::size_t g_nSJBH = 2;
constexpr std::size_t g_nSHJHXH = 3;
constexpr std::size_t g_nWY = 4;
constexpr std::size_t g_nJLLX = 14;

} // namespace

TEST_F(ImportRefusals, TakesTheNumberFormsOfTheFormat) {
    for (const char* pszText :
         {"-0.01", "80", "1e-05", "+5", ".5", "5.", "2E3", "-0", "3.4028234e38", "1e-400"})
        Takes({Reading(g_nWY, pszText)}, "--replace ");
    Takes({Reading(g_nWY, "-0.01")}, "--replace ");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT WY FROM z_c_SanZhouCSXM"), "-0.01\n");
}

TEST_F(ImportRefusals, OtherFormsOfNumbers) {
    for (const char* pszText : {"1e999", "-1e999", "3.5e38", "nan", "NaN", "inf", "-inf", "Infinity", "0x10",
                                "1 ", " 1", "1e", "e5", "--1", "1.2.3", "ten", "."})
        Refuses({Reading(g_nWY, pszText)},
                "1.csv:2: WY: \"" + std::string(pszText) +
                    "\" is no decimal number within the range of a 4-byte float\n");
    Refuses({Reading(g_nWY, "\"1,5\"")},
            "1.csv:2: WY: \"1,5\" is no decimal number within the range of a 4-byte float\n");
    Refuses({Reading(g_nWY, Utf8(u8"５"))},
            Utf8(u8"1.csv:2: WY: \"５\" is no decimal number within the range of a 4-byte float\n"));
}

TEST_F(ImportRefusals, WholeNumbersOutOfTheirRange) {
    const std::string strInt32 = " is no whole number from -2147483648 to 2147483647\n";
    for (const char* pszText : {"2147483648", "-2147483649", "1.0", "1e3", "99999999999999999999", "x"}) {
        Refuses({Reading(g_nSJBH, pszText)}, "1.csv:2: SJBH: \"" + std::string(pszText) + "\"" + strInt32);
        Refuses({Reading(g_nSHJHXH, pszText)},
                "1.csv:2: SHJHXH: \"" + std::string(pszText) + "\"" + strInt32);
    }
    for (const char* pszText : {"128", "-129", "2.0", "a"})
        Refuses({Reading(g_nJLLX, pszText)},
                "1.csv:2: JLLX: \"" + std::string(pszText) + "\" is no whole number from -128 to 127\n");
    for (const char* pszText : {"256", "-1"})
        Refuses({"ZKBH,QYBH,SYFF,QYLX\nZK1,1-1,," + std::string(pszText) + "\n"},
                "1.csv:2: QYLX: \"" + std::string(pszText) + "\" is no whole number from 0 to 255\n");
    Takes({Reading(g_nSJBH, "-2147483648"), Reading(g_nSJBH, "+2147483647")});
    Takes({Reading(g_nJLLX, "-128")}, "--replace ");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT SJBH FROM z_c_SanZhouCSXM ORDER BY SJBH"),
              "-2147483648\n1\n2147483647\n");
}

TEST_F(ImportRefusals, EmptyFieldsThatMayNotBeEmpty) {
    for (const auto& [nPlace, pszColumn] : std::vector<std::pair<std::size_t, const char*>>{
             {0, "ZKBH"}, {1, "QYBH"}, {g_nSJBH, "SJBH"}, {g_nWY, "WY"}, {g_nJLLX, "JLLX"}})
        Refuses({Reading(nPlace, "")}, "1.csv:2: " + std::string(pszColumn) + ": the field is empty\n");
    Refuses({"ZKBH,QYBH,SYFF\n,1-1,\nZK1,,\n"},
            "1.csv:2: ZKBH: the field is empty\n1.csv:3: QYBH: the field is empty\n");
    Refuses({g_strLayerHeader + "ZK1,4,,\n"},
            "1.csv:2: TCHD: the field is empty\n1.csv:2: TCMC: the field is empty\n");
}

TEST_F(ImportRefusals, TextsLongerThanTheirColumn) {
    Takes({g_strLayerHeader + "ZK1,4,4," + std::string(255, 'x') + "\n"});
    Refuses({g_strLayerHeader + "ZK1,5,4," + std::string(256, 'x') + "\n"},
            "1.csv:2: TCMC: the text has 256 bytes in code page 936, more than 255\n");
    std::string strWide;
    for (int i = 0; i < 128; ++i)
        strWide += Utf8(u8"土");
    Refuses({g_strLayerHeader + strWide + ",5,4,x\n"},
            "1.csv:2: ZKBH: the text has 256 bytes in code page 936, more than 255\n");
}

TEST_F(ImportRefusals, CharactersThatTheCodePageLacks) {
    Refuses({Utf8(u8"ZKBH,QYBH,SYFF\nZK1,1-😀,\nZK1,한,\n")},
            Utf8(u8"1.csv:2: QYBH: \"😀\" (U+1F600) is not in code page 936\n"
                 u8"1.csv:3: QYBH: \"한\" (U+D55C) is not in code page 936\n"));
    Refuses({"ZKBH,QYBH,SYFF\nZK1,\xB2\xBB,\n"}, "1.csv:2: QYBH: the bytes are no UTF-8\n"); // code page text
}

TEST_F(ImportRefusals, BrokenQuotes) {
    Refuses({g_strLayerHeader + "ZK1,4,4,\"a\nb\"\nZK1,x,4,c\n"}, // the second row stands in the fourth line
            "1.csv:4: TCCDSD: \"x\" is no decimal number within the range of a 4-byte float\n");
    Refuses({g_strLayerHeader + "ZK1,4,4,a\"b\n"},
            "1.csv:2: TCMC: a quote stands inside a field that is not quoted\n");
    Refuses({g_strLayerHeader + "ZK1,4,4,\"a\"b\n"}, "1.csv:2: TCMC: text follows the closing quote\n");
    Refuses({g_strLayerHeader + "ZK1,4,4,\"a\n"}, "1.csv:2: TCMC: the quote is never closed\n");
    Refuses({g_strLayerHeader + "ZK1,4,\"a\nb\",c\n"},
            "1.csv:2: TCHD: \"a\\nb\" is no decimal number within the range of a 4-byte float\n");
    Refuses({"ZKBH,TCCDSD,TCHD,\"TC\nMC\"\n"},
            "1.csv:1: TC\\nMC: unknown column in a file of layers\n"
            "1.csv:1: TCMC: required column missing in a file of layers\n");
}

TEST_F(ImportRefusals, TakesAMarkCarriageReturnsAndQuotesOverLines) {
    Takes({"\xEF\xBB\xBF\"ZKBH\",TCCDSD,TCHD,tcmc\r\n\r\n\"ZK\"\"1\",4,4,\"a,\nb\"\r\nZK1,5,4,c"});
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT ZKBH, TCMC FROM z_g_TuCeng"),
              "ZK\"1|a,\nb\nZK1|c\n");
}

TEST_F(ImportRefusals, BadHeaders) {
    Refuses({"ZKBH,QYBH,SYFF,syff,QYSD,GCSY\nZK1,1-1,,,,\n"},
            "1.csv:1: syff: the column stands twice\n"
            "1.csv:1: GCSY: unknown column in a file of samples\n");
    Refuses({"ZKBH,QYBH,SJBH,SHJHXH,WY,SYGD,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,JLLX\n"},
            "1.csv:1: GJPS: required column missing in a file of readings\n");
    Refuses({"ZKBH,QYBH,SYFF,CLHDS\n"}, "1.csv:1: SYFF: unknown column in a file of readings\n"
                                        "1.csv:1: SJBH: required column missing in a file of readings\n"
                                        "1.csv:1: SHJHXH: required column missing in a file of readings\n"
                                        "1.csv:1: WY: required column missing in a file of readings\n"
                                        "1.csv:1: SYGD: required column missing in a file of readings\n"
                                        "1.csv:1: SYZJ: required column missing in a file of readings\n"
                                        "1.csv:1: CLHXS: required column missing in a file of readings\n"
                                        "1.csv:1: GJKXYL: required column missing in a file of readings\n"
                                        "1.csv:1: ZXBX: required column missing in a file of readings\n"
                                        "1.csv:1: JQPS: required column missing in a file of readings\n"
                                        "1.csv:1: KXYL: required column missing in a file of readings\n"
                                        "1.csv:1: GJPS: required column missing in a file of readings\n"
                                        "1.csv:1: JLLX: required column missing in a file of readings\n");
    Refuses({"a;b;c\n1;2;3\n"},
            "1.csv:1: header: none of CLHDS, SYFF, TCCDSD is there, so the kind of the file is unknown\n");
}

TEST_F(ImportRefusals, KeysThatStandTwice) {
    const std::string strRow = "ZK1,1-1,1,1,50,80,39.1,1,0,1,2,0,0,0,2\n";
    Refuses({g_strReadingHeader + strRow + strRow}, "1.csv:3: SHJHXH: the same key stands in 1.csv:2\n");
    Refuses({g_strReadingHeader + strRow, g_strReadingHeader + strRow},
            "2.csv:2: SHJHXH: the same key stands in 1.csv:2\n");
    Refuses({g_strReadingHeader + strRow + strRow}, "1.csv:3: SHJHXH: the same key stands in 1.csv:2\n",
            "--replace ");
    Takes({g_strReadingHeader + strRow});
    Refuses({g_strReadingHeader + strRow}, "1.csv:2: SHJHXH: a row of this key is stored already\n");
    Takes({g_strReadingHeader + strRow}, "--replace ");
    Refuses({g_strLayerHeader + "ZK1,0.1,4,a\nZK1,0.10000000001,4,b\n"}, // one number in a 4-byte column
            "1.csv:3: TCCDSD: the same key stands in 1.csv:2\n");
    Refuses({g_strLayerHeader + "ZK1,0,4,a\nZK1,-0,4,b\n"},
            "1.csv:3: TCCDSD: the same key stands in 1.csv:2\n");
    Takes({"ZKBH,QYBH,SYFF\nzk1,1-1,\nZK1,1-1,\nZK1,1-1 ,\n"}); // other texts, other keys
}

TEST_F(ImportRefusals, ASampleThatStandsInOneOfItsTwoTables) {
    EXPECT_EQ(
        m_program
            .Shell(
                "sqlite3 \"$ROOT/Projects/A/project.db\" \"INSERT INTO z_c_SanZhou (GCSY, ZKBH, QYBH, CUC) "
                "VALUES (1, 'ZK1', '1-1', 5)\"")
            .m_nStatus,
        0);
    const std::string strFile = "ZKBH,QYBH,SYFF,QYSD\nZK1,1-1,,3\n";
    Refuses({strFile}, "1.csv:2: QYBH: a row of this key is stored already\n");
    Takes({strFile}, "--replace ");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT QYBH, QYSD FROM z_c_QuYang"), "1-1|3\n");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT QYBH, CUC FROM z_c_SanZhou"), "1-1|5\n");
}

TEST_F(ImportRefusals, OneBadFileOfSeveralKeepsAllOut) {
    Refuses({g_strLayerHeader + "ZK1,4,4,a\n", "ZKBH,QYBH,SYFF\nZK1,1-1,\n", Reading(g_nWY, "x")},
            "3.csv:2: WY: \"x\" is no decimal number within the range of a 4-byte float\n");
    const CRun run = Run({g_strLayerHeader + "ZK1,4,4,a\n"}, "missing.csv ");
    EXPECT_EQ(run.m_nStatus, 4);
    EXPECT_EQ(run.m_strErrors, "tvdata: missing.csv: the file cannot be read\n");
    EXPECT_EQ(m_program.Sql("Projects/A/project.db", "SELECT COUNT(*) FROM z_g_TuCeng"), "0\n");
}

TEST_F(ImportRefusals, AReplacedSampleKeepsItsDateAndValues) {
    Takes({"ZKBH,QYBH,SYFF,QYSD\nZK1,1-1,,1\n"});
    EXPECT_EQ(m_program
                  .Shell("sqlite3 \"$ROOT/Projects/A/project.db\" \"UPDATE z_c_SanZhou SET SYRQ = "
                         "'2024.3.9', UUC = 1.5, "
                         "CDF = 30\"")
                  .m_nStatus,
              0);
    Takes({Utf8(u8"ZKBH,QYBH,SYFF\nZK1,1-1,固结排水剪\n")}, "--replace ");
    EXPECT_EQ(Stored(),
              Utf8(u8"1|ZK1|1-1|固结排水剪|2024.3.9|1.5|-|-|-|-|-|-|30\n\n\n1|ZK1|1-1|-|-|-|-|-|-\n\n\n"));
}
