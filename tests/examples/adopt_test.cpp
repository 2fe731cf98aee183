// The session of examples/adopt.scr on the demo project: its transcript against examples/adopt.txt, in which
// ROOT stands for the installation's folder, and the chart that it leaves against tests/data/golden.
// tests/data/golden/renew makes both anew.

#include "tests/examples/demo_project.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace {
constexpr const char* g_pTranscript = TERVO_EXAMPLES "/adopt.txt";
constexpr const char* g_pChart = TERVO_TEST_DATA "/golden/adopted-chart.json";

std::string BytesOf(const std::string& strPath) {
    std::ostringstream bytes;
    bytes << std::ifstream(strPath, std::ios::binary).rdbuf();
    return bytes.str();
}

/// The fields of the one chart of a dump.
CJson ChartOf(const CJson& dump) {
    CJson charts = CJson::array();
    for (const CJson& entity : dump["modelSpace"])
        if (entity["class"] == "CBRENChart") charts.push_back(entity["fields"]);
    EXPECT_EQ(charts.size(), 1U);
    return charts.at(0);
}

/// Numbers may differ in what another processor's mathematical functions make of them.
void ExpectSame(const CJson& one, const CJson& other) {
    const CJson values = one.flatten(), others = other.flatten();
    EXPECT_EQ(values.size(), others.size());
    for (const auto& [strKey, value] : values.items())
        if (value.is_number_float()) {
            EXPECT_NEAR(value.get<double>(), others.value(strKey, 0.0), 1e-9) << strKey;
        } else {
            EXPECT_EQ(value, others.value(strKey, CJson())) << strKey;
        }
}

/// The session in the demo project, which dumps the drawing that it opened and the one that it stored.
class AdoptionStory : public testing::Test, protected CDemoProject {
protected:
    AdoptionStory() {
        m_run = m_program.Shell("{ cat " TERVO_EXAMPLES "/adopt.scr; printf 'DUMP \"" +
                                Folder().Path("opened.json") + "\"\\nACTIVATE 1\\nDUMP \"" +
                                Folder().Path("stored.json") +
                                "\"\\n'; } | " TERVO_BIN "/tvcad --root \"$ROOT\" -s -");
        m_opened = CJson::parse(Folder().Read("opened.json"));
        m_stored = CJson::parse(Folder().Read("stored.json"));
    }
    /// What the session printed, before the dumps.
    std::string Transcript() const {
        std::string strOut = m_run.m_strOut.substr(0, m_run.m_strOut.find("Command: DUMP"));
        for (std::size_t nAt = 0; (nAt = strOut.find(m_program.Root())) != std::string::npos;)
            strOut.replace(nAt, m_program.Root().size(), "ROOT");
        return strOut;
    }

    CRun m_run;
    CJson m_opened, m_stored;
};
} // namespace

TEST_F(AdoptionStory, PrintsItsTranscript) {
    EXPECT_EQ(m_run.m_nStatus, 0) << m_run.m_strErrors;
    if (std::getenv("TERVO_RENEW_GOLDEN")) {
        std::ofstream(g_pTranscript) << Transcript();
        GTEST_SKIP() << g_pTranscript << " is renewed: look at it";
    }
    EXPECT_EQ(Transcript(), BytesOf(g_pTranscript));
}

TEST_F(AdoptionStory, LeavesTheChartWithTheValuesOfItsLine) {
    const CJson chart = ChartOf(m_opened);
    if (std::getenv("TERVO_RENEW_GOLDEN")) {
        std::ofstream(g_pChart) << chart.dump(1) << "\n";
        GTEST_SKIP() << g_pChart << " is renewed: look at it";
    }
    ExpectSame(chart, CJson::parse(BytesOf(g_pChart)));
}

TEST_F(AdoptionStory, OpensTheDrawingAsItWasStored) {
    for (CJson* const pDump : {&m_opened, &m_stored})
        for (CJson& entity : (*pDump)["modelSpace"])
            if (entity["class"] == "CBRENChart")
                entity["fields"].erase("m_bColorChanging"); // not in the file
    EXPECT_EQ(m_opened, m_stored);
}

TEST_F(AdoptionStory, StoresTheValuesThatChartAndLineShow) {
    const CJson row = Values("ZK1", "1-2");
    const CJson chart = ChartOf(m_opened);
    for (const auto& [pColumn, pAdopted, pRead] : {std::tuple{"CUC", "m_dAdoptC", "m_dGraphC"},
                                                   {"CUF", "m_dAdoptPhi", "m_dGraphPhi"},
                                                   {"CUCE", "m_dAdoptCEff", "m_dGraphCEff"},
                                                   {"CUFE", "m_dAdoptPhiEff", "m_dGraphPhiEff"}}) {
        EXPECT_EQ(chart[pAdopted], row[pColumn]) << pColumn;
        EXPECT_NEAR(chart[pRead].get<double>(), row[pColumn].get<double>(), 1e-4)
            << pColumn << ", of the refitted line";
    }
    EXPECT_GT(row["CUF"].get<double>(), chart["m_dCalcPhi"].get<double>() + 1.0) << "of the dragged line";
}
