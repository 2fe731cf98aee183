// A project of many boreholes and samples, listed, opened and drawn.

#include "tests/road/bren_project.h"
#include "tests/robustness/child_run.h"
#include "tests/robustness/extent.h"

#include <gtest/gtest.h>

#include <iomanip>

namespace {
constexpr int g_nSamplesOfBorehole = 20;
constexpr int g_nSpecimens = 3;

/// Readings of specimens whose strength grows with their cell pressure.
void AppendReadings(const std::string& strKey, int nReadings, std::string* pRows) {
    for (int nSpecimen = 1; nSpecimen <= g_nSpecimens; ++nSpecimen)
        for (int i = 1; i <= nReadings; ++i) {
            const int nPressure = 100 * nSpecimen;
            pRows->append(strKey).append(std::to_string(nSpecimen)).append(",").append(std::to_string(i));
            pRows->append(",").append(std::to_string(nPressure)).append(",80,39.1,1,0,");
            pRows->append(std::to_string((50 + nPressure) * i / nReadings)).append(",");
            pRows->append(std::to_string(50 * i)).append(i == nReadings ? ",0,0,0,2\n" : ",0,0,0,0\n");
        }
}

CImportRows LargeRows(int nBoreholes, int nReadings) {
    CImportRows rows;
    for (int nBorehole = 1; nBorehole <= nBoreholes; ++nBorehole) {
        const std::string strZKBH = "ZK" + std::to_string(nBorehole);
        rows.m_strLayers += strZKBH + ",30,30," + Utf8(u8"粘土") + "\n";
        for (int nSample = 1; nSample <= g_nSamplesOfBorehole; ++nSample) {
            const std::string strKey =
                strZKBH + "," + std::to_string(nBorehole) + "-" + std::to_string(nSample) + ",";
            rows.m_strSamples.append(strKey).append(std::to_string(nSample));
            rows.m_strSamples.append(",0.2,24,0,12,28,").append(g_strUU).append("\n");
            AppendReadings(strKey, nReadings, &rows.m_strReadings);
        }
    }
    return rows;
}

std::string Rounded(double dValue, int nDecimals) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(nDecimals) << dValue;
    return text.str();
}

class LargeProject : public testing::Test {
protected:
    /// Runs a command to its end and tells what it took.
    void Measure(const std::string& strTrial, const std::string& strCommand) const {
        const CRunFigures figures = MeasuredRun(strCommand);
        EXPECT_EQ(figures.m_nStatus, 0) << strCommand;
        TellFigure(strTrial,
                   Rounded(figures.m_dSeconds, 2) + " s (" + Rounded(figures.m_dProcessorSeconds, 2) +
                       " s of the processor), peak memory " + Rounded(figures.m_dPeakMebibytes, 0) + " MiB");
    }
    std::string Script(const std::string& strName, const std::string& strLines) const {
        return TERVO_BIN "/tvcad --root \"$ROOT\" -q -s " +
               m_project.m_program.Folder().Write(strName, strLines);
    }
    /// How many samples have a stored value.
    std::string Stored() const {
        return m_project.Sql("SELECT COUNT(*) FROM z_c_SanZhou WHERE UUC IS NOT NULL");
    }

    const int m_nBoreholes = Extent(10, 1000), m_nReadings = Extent(2, 20);
    const int m_nSamples = m_nBoreholes * g_nSamplesOfBorehole;
    const CBrenProject m_project{LargeRows(m_nBoreholes, m_nReadings), 0, ""};
};
} // namespace

TEST_F(LargeProject, IsImportedListedOpenedAndDrawn) {
    const std::string strSamples = std::to_string(m_nSamples),
                      strOf =
                          " of " + strSamples + " samples in " + std::to_string(m_nBoreholes) + " boreholes";
    const int nRows = m_nSamples * g_nSpecimens * m_nReadings;
    Measure(
        "`tvdata import --replace` of " + std::to_string(nRows) + " readings" + strOf,
        "$T import --root \"$ROOT\" --number GC1 --replace \"$ROOT/../samples.csv\" \"$ROOT/../layers.csv\" "
        "\"$ROOT/../readings.csv\"");
    EXPECT_EQ(m_project.Sql("SELECT COUNT(*) FROM z_c_SanZhouCSXM"), std::to_string(nRows) + "\n");
    Measure("`tvdata list`" + strOf, "$T list --root \"$ROOT\" --json");
    Measure("`tvdata results`" + strOf, "$T results --root \"$ROOT\" --number GC1 --csv");
    Measure("`tvdata open`", "$T open --root \"$ROOT\" --number GC1");
    Measure("`BREN`: the selection sheet" + strOf, Script("sheet.scr", "BREN\ncancel\n"));
    EXPECT_EQ(Stored(), "0\n");
    Measure("`BREN` for the 20 samples of one borehole",
            Script("one.scr", "BREN\nselect 1010 ZK7\nselect 1011 all\nok\n0,0\n"));
    EXPECT_EQ(Stored(), "20\n");
    Measure("`BREN` for all " + strSamples + " samples into one drawing",
            Script("all.scr", "BREN\ncheck 1063\nok\n0,0\n"));
    EXPECT_EQ(Stored(), strSamples + "\n");
}
