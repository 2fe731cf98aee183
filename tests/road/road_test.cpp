// The whole road through the real programs: readings on disk become a project, a sheet, a picture and stored
// values.

#include "tests/support/programs.h"
#include "tests/support/test_database.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {
using CJson = nlohmann::json;

std::string ReadFile(const std::string& strPath) {
    std::ostringstream text;
    text << std::ifstream(strPath, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> SetNames() {
    std::vector<std::string> sets;
    for (const auto& entry : std::filesystem::directory_iterator(TERVO_TEST_DATA "/readings"))
        if (entry.is_directory()) sets.push_back(entry.path().filename());
    std::sort(sets.begin(), sets.end());
    return sets;
}

/// A project with the readings of one set, running.
class CRoad {
public:
    /// In a database of the project's own, or in the one that strConnect names.
    explicit CRoad(const std::string& strSet, const std::string& strConnect = "") {
        setenv("CONNECT", strConnect.c_str(), 1);
        const std::string strFolder = TERVO_TEST_DATA "/readings/" + strSet;
        m_program.Do("init \"$ROOT\"");
        m_program.Do("new --root \"$ROOT\" --number GC1 --name test --connect \"$CONNECT\"");
        m_program.Do("import --root \"$ROOT\" --number GC1 " + strFolder + "/samples.csv " + strFolder +
                     "/layers.csv " + strFolder + "/readings.csv");
        m_program.Do("open --root \"$ROOT\" --number GC1");
        // The first row of the samples begins with borehole and sample.
        std::istringstream samples(ReadFile(strFolder + "/samples.csv"));
        std::string strRow;
        for (int i = 0; i < 2; i++)
            std::getline(samples, strRow);
        std::istringstream row(strRow);
        std::getline(row, m_strZKBH, ',');
        std::getline(row, m_strQYBH, ',');
    }
    /// BREN for the one sample of a set, then what else the script says. The working folder of output is
    /// $OUT.
    CRun Generate(const std::string& strThen) {
        return m_program.Tvcad("BREN\nselect 1010 " + m_strZKBH + "\nselect 1011 " + m_strQYBH +
                               "\nok\n0,0\n" + strThen);
    }
    std::string File(const std::string& strName) const { return m_program.Folder().Path(strName); }
    CJson Dump() const { return CJson::parse(ReadFile(File("sheet.json"))); }
    /// The one sheet's chart, which stands behind the reference to its frame.
    CJson Chart() const { return Dump()["modelSpace"].at(1); }
    CJson Results() { return CJson::parse(m_program.Do("results --root \"$ROOT\" --number GC1 --json")); }

    CProgram m_program;
    std::string m_strZKBH, m_strQYBH;
};

/// In a database that another tool could have made.
class RoadOnEngine : public testing::TestWithParam<TestEngine> {
protected:
    CTestDatabase m_database{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Engines, RoadOnEngine, TestEngines(), TestEngineName);

class RoadOfSet : public testing::TestWithParam<std::string> {};

/// Values that the dump writes as texts because they are no finite numbers.
void CountOddNumbers(const CJson& value, int* pCount) {
    if (value.is_string() && (value == "nan" || value == "inf" || value == "-inf")) ++*pCount;
    if (value.is_structured())
        for (const CJson& part : value)
            CountOddNumbers(part, pCount);
}
} // namespace

TEST_P(RoadOfSet, LeadsFromReadingsToChartPictureAndValues) {
    CRoad road(GetParam());
    const CRun run =
        road.Generate("DUMP " + road.File("sheet.json") + "\nPLOT " + road.File("sheet.pdf") + "\n");
    EXPECT_EQ(run.m_strErrors.find("ERROR"), std::string::npos) << run.m_strErrors;
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    const CJson modelSpace = road.Dump()["modelSpace"];
    const CJson row = road.Results().at(0);

    if (GetParam().starts_with("refused-")) {
        EXPECT_NE(run.m_strOut.find(Utf8(u8"原始数据不正确导致出现不正常负值!")), std::string::npos)
            << run.m_strOut;
        EXPECT_NE(run.m_strOut.find(Utf8(u8"[Tervo] 三轴剪切试验初始数据错误!")), std::string::npos)
            << run.m_strOut;
        EXPECT_EQ(modelSpace.size(), 1U) << "the frame of the sheet that was begun stays";
        EXPECT_TRUE(row["SYRQ"].is_null());
        return;
    }
    ASSERT_EQ(modelSpace.size(), 4U);
    EXPECT_EQ(modelSpace[0]["block"], "BRMB");
    EXPECT_EQ(modelSpace[0]["position"], CJson({0.0, 0.0, 0.0}));
    const CJson& chart = modelSpace[1];
    EXPECT_EQ(chart["class"], "CBRENChart");
    const CJson& fields = chart["fields"];
    EXPECT_EQ(modelSpace[2]["text"], Utf8(u8"试样编号：") + road.m_strZKBH + "-" + road.m_strQYBH);
    EXPECT_EQ(modelSpace[2]["position"], CJson({28.0, 251.0, 0.0}));
    EXPECT_EQ(modelSpace[3]["text"], fields["m_strSYFF"]);
    EXPECT_EQ(fields["m_ptBase"], CJson({25.0, 262.0, 0.0}));
    EXPECT_FALSE(chart["world"].empty());
    EXPECT_TRUE(std::filesystem::exists(road.File("sheet.pdf")));
    int nOdd = 0;
    CountOddNumbers(fields, &nOdd);
    if (GetParam() == "uu-clay-load-stroke") {
        // A circle lies inside its neighbours; those pairs have no tangent, and one of them wins the tie in
        // the middle.
        EXPECT_EQ(fields["m_dCalcC"], "nan");
        EXPECT_EQ(fields["m_dAdoptPhi"], "nan");
        EXPECT_GT(nOdd, 0);
        EXPECT_TRUE(row["UUC"].is_null());
        EXPECT_FALSE(row["SYRQ"].is_null());
        return;
    }
    EXPECT_EQ(nOdd, 0);

    // What the table holds is what the chart adopted, to two decimals and in single precision.
    const std::string strMethod = fields["m_strSYFF"];
    const auto stored = [&](const char* pColumn, const char* pField) {
        char text[64];
        std::snprintf(text, sizeof text, "%.2f", fields[pField].get<double>());
        EXPECT_EQ(row[pColumn].get<float>(), std::strtof(text, nullptr)) << pColumn;
    };
    if (strMethod == Utf8(u8"不固结不排水剪")) {
        stored("UUC", "m_dAdoptC");
        stored("UUF", "m_dAdoptPhi");
    } else if (strMethod == Utf8(u8"固结不排水剪")) {
        stored("CUC", "m_dAdoptC");
        stored("CUF", "m_dAdoptPhi");
        stored("CUCE", "m_dAdoptCEff");
        stored("CUFE", "m_dAdoptPhiEff");
    } else {
        stored("CDC", "m_dAdoptC");
        stored("CDF", "m_dAdoptPhi");
    }
}

INSTANTIATE_TEST_SUITE_P(All, RoadOfSet, testing::ValuesIn(SetNames()), [](const auto& set) {
    std::string strName = set.param;
    for (char& c : strName)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return strName;
});

TEST(Road, StoresTheLastOfThreePublishedTangentsThatTie) {
    CRoad road("smith-ex3.4");
    EXPECT_EQ(road.Generate("").m_nStatus, 0);
    const CJson row = road.Results().at(0);
    EXPECT_EQ(row["UUC"], 83.97);
    EXPECT_EQ(row["UUF"], 7.87);
}

TEST(Road, StoresThePublishedTangentOfThreeCircles) {
    CRoad road("smith-exc4.4");
    EXPECT_EQ(road.Generate("").m_nStatus, 0);
    const CJson row = road.Results().at(0);
    EXPECT_EQ(row["CDC"], 11.03);
    EXPECT_EQ(row["CDF"], 17.35);
}

TEST(Road, KeepsTheValuesOfTangentsInTheChart) {
    CRoad road("smith-exc4.4");
    EXPECT_EQ(road.Generate("DUMP " + road.File("sheet.json") + "\n").m_nStatus, 0);
    const CJson fields = road.Chart()["fields"];
    EXPECT_NEAR(fields["m_dCalcC"].get<double>(), 11.028, 0.001);
    EXPECT_NEAR(fields["m_dCalcPhi"].get<double>(), 17.352, 0.001);
}

TEST(Road, ASheetSurvivesItsModule) {
    CRoad road("mafra-ciu");
    std::string strReloads;
    for (int i = 0; i < 100; i++)
        strReloads += "UNLOADMODULE tervo-bren.so\nLOADMODULE tervo-bren.so\n";
    const CRun run = road.Generate("REGEN\nDUMP " + road.File("before.json") +
                                   "\nUNLOADMODULE tervo-bren.so\nDUMP " + road.File("without.json") +
                                   "\nPLOT " + road.File("without.svg") + "\nLOADMODULE tervo-bren.so\n" +
                                   strReloads + "REGEN\nDUMP " + road.File("sheet.json") + "\nCOMMANDS\n");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("BREN BREN 0\nBREN BRCF 0\nBREN BROPEN 0\n"), std::string::npos)
        << run.m_strOut;
    CJson before = CJson::parse(ReadFile(road.File("before.json")));
    const CJson without = CJson::parse(ReadFile(road.File("without.json")));
    const CJson chart = before["modelSpace"][1];
    const CJson& proxy = without["modelSpace"][1];
    EXPECT_EQ(proxy["class"], "AcDbProxyEntity");
    EXPECT_EQ(proxy["originalClass"], "CBRENChart");
    EXPECT_EQ(proxy["graphics"], chart["world"]);
    EXPECT_NE(ReadFile(road.File("without.svg")).find(Utf8(u8"轴向应变ε (%)")), std::string::npos);
    before["modelSpace"][1]["fields"]["m_bColorChanging"] = 0; // which no record holds
    EXPECT_EQ(road.Dump(), before);
}

TEST(Road, ExplodesAChartIntoThePartsThatItsDumpLists) {
    CRoad road("mafra-ciu");
    const CRun run = road.Generate("DUMP " + road.File("sheet.json") +
                                   "\nERASE L\nERASE L\nEXPLODE L\nDUMP " + road.File("parts.json") + "\n");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    const CJson parts = road.Chart()["explode"];
    EXPECT_EQ(parts.size(), road.Chart()["world"].size());
    CJson modelSpace = CJson::parse(ReadFile(road.File("parts.json")))["modelSpace"];
    modelSpace.erase(0); // the reference to the frame
    ASSERT_EQ(modelSpace.size(), parts.size());
    for (std::size_t i = 0; i < parts.size(); i++) {
        modelSpace[i].erase("handle");
        EXPECT_EQ(modelSpace[i], parts[i]);
    }
}

TEST(Road, PrintsTitlesAsTextOnOneSheetOfA4) {
    CRoad road("mafra-ciu");
    EXPECT_EQ(road.Generate("PLOT " + road.File("sheet.pdf") + "\nPLOT " + road.File("sheet.svg") +
                            "\nPLOT " + road.File("sheet.png") + "\n")
                  .m_nStatus,
              0);
    EXPECT_EQ(
        road.m_program.Shell("pdftotext '" + road.File("sheet.pdf") + "' '" + road.File("sheet.txt") + "'")
            .m_nStatus,
        0);
    const std::string strText = ReadFile(road.File("sheet.txt"));
    EXPECT_NE(strText.find(Utf8(u8"轴向应变ε")), std::string::npos) << strText;
    std::size_t nAt = 0;
    for (const char8_t* pCharacter : {u8"主", u8"应", u8"力", u8"差"}) {
        nAt = strText.find(Utf8(pCharacter), nAt);
        ASSERT_NE(nAt, std::string::npos) << strText;
    }
    const CRun info = road.m_program.Shell("pdfinfo '" + road.File("sheet.pdf") + "'");
    EXPECT_NE(info.m_strOut.find("Pages:           1"), std::string::npos) << info.m_strOut;
    EXPECT_NE(info.m_strOut.find("(A4)"), std::string::npos) << info.m_strOut;
    EXPECT_NE(ReadFile(road.File("sheet.svg")).find(Utf8(u8"轴向应变ε (%)")), std::string::npos);
    EXPECT_EQ(ReadFile(road.File("sheet.png")).substr(1, 3), "PNG");
}

TEST(Road, DrawsTheSameTwice) {
    CRoad road("mafra-ciu");
    EXPECT_EQ(
        road.Generate("DUMP " + road.File("sheet.json") + "\nREGEN\nDUMP " + road.File("again.json") + "\n")
            .m_nStatus,
        0);
    EXPECT_EQ(ReadFile(road.File("sheet.json")), ReadFile(road.File("again.json")));
}

TEST_P(RoadOnEngine, LeadsToTheSameValuesAndChart) {
    const auto outcome = [](const std::string& strConnect) {
        CRoad road("smith-exc4.4", strConnect);
        EXPECT_EQ(road.Generate("DUMP " + road.File("sheet.json") + "\n").m_nStatus, 0);
        const CJson listed = CJson::parse(road.m_program.Do("list --root \"$ROOT\" --json"));
        return CJson({road.Results(), listed, road.Chart()["fields"]});
    };
    const CJson here = outcome(m_database.ConnectionText());
    EXPECT_EQ(here, outcome("")); // in a database of its own
    EXPECT_EQ(here[0][0]["CDC"], 11.03);
    EXPECT_EQ(here[0][0]["CDF"], 17.35);
}

TEST_P(RoadOnEngine, TellsOfAStoreThatAnotherProgramsLockHeldUp) {
    CRoad road("smith-exc4.4", m_database.ConnectionText() + ";Lock Timeout=200");
    const auto pOther = m_database.Connect();
    pOther->BeginTransaction();
    pOther->Execute("UPDATE z_c_SanZhou SET SYRQ = 'held'");
    const CRun run = road.Generate("");
    pOther->RollbackTransaction();
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_NE(run.m_strOut.find("z_c_SanZhou 1 1-1: locked by another program, row not stored"),
              std::string::npos)
        << run.m_strOut;
    EXPECT_TRUE(road.Results().at(0)["CDC"].is_null());
}

TEST(Road, LosesTheModulesCommandsWhileItIsAway) {
    const CProgram program;
    const std::string strModule = "\"" TERVO_BIN "/tervo-bren.so\"\n";
    const CRun run = program.Tvcad("COMMANDS\nUNLOADMODULE " + strModule + "COMMANDS\nLOADMODULE " +
                                   strModule + "COMMANDS\n");
    EXPECT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    EXPECT_EQ(run.m_strOut,
              "BREN BREN 0\nBREN BRCF 0\nBREN BROPEN 0\nBREN BREN 0\nBREN BRCF 0\nBREN BROPEN 0\n")
        << "none between the two";
    const CRun without = program.Tvcad("UNLOADMODULE " + strModule + "BREN\n");
    EXPECT_EQ(without.m_nStatus, 5);
    EXPECT_NE(without.m_strErrors.find("unknown command: BREN"), std::string::npos) << without.m_strErrors;
}

TEST(Road, KeepsAFrameWhileTheModuleIsAway) {
    const CProgram program;
    const auto path = [&](const char* name) { return program.Folder().Path(name); };
    std::ofstream(path("frame.json")) << R"({"class":"CBRENFrame","fields":{"m_nGCBZ":2,"m_strZKBH":"ZK1"}})";
    const std::string strModule = "\"" TERVO_BIN "/tervo-bren.so\"\n";
    const CRun run = program.Tvcad("ADDENTITY " + path("frame.json") + "\nDUMP " + path("before.json") +
                                   "\nUNLOADMODULE " + strModule + "DUMP " + path("away.json") +
                                   "\nLOADMODULE " + strModule + "DUMP " + path("after.json") + "\n");
    ASSERT_EQ(run.m_nStatus, 0) << run.m_strErrors;
    const std::string strBefore = ReadFile(path("before.json"));
    EXPECT_EQ(ReadFile(path("after.json")), strBefore);
    const CJson frame = CJson::parse(strBefore)["modelSpace"][0];
    EXPECT_EQ(frame["class"], "CBRENFrame");
    EXPECT_EQ(frame["fields"]["m_nGCBZ"], 2);
    EXPECT_EQ(frame["fields"]["m_vecGripOffset"], CJson({0.0, 0.0, 0.0}));
    EXPECT_EQ(frame["grips"].size(), 1U);
    EXPECT_EQ(frame["world"].size(), 15U);
    EXPECT_EQ(frame["explode"].size(), 15U);
    const CJson proxy = CJson::parse(ReadFile(path("away.json")))["modelSpace"][0];
    EXPECT_EQ(proxy["class"], "AcDbProxyEntity");
    EXPECT_EQ(proxy["originalClass"], "CBRENFrame");
}
