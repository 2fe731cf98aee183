#include "analysis/reduction.h"

#include "tests/analysis/sound_reading.h"
#include "tests/support/readings.h"

#include <gtest/gtest.h>

namespace {
/// Runs readings through a chart; the printed text is that of the whole run.
struct CRun {
    CPrintedText m_printed;
    CBRENChart m_chart;
    int m_nResult = 0;

    CRun(const char* pMethod, const std::vector<CTestReading>& readings) {
        m_chart.m_strSYFF = pMethod;
        CReduction reduction(m_chart);
        for (const CTestReading& reading : readings)
            if (!reduction.AddReading(reading)) return;
        m_nResult = reduction.Finish();
    }
    std::string Printed() const { return m_printed.Text(); }
};

std::vector<double> List(const CDoubleList& list) {
    return {list.begin(), list.end()};
}
} // namespace

TEST(Reduction, RefusesANegativeReadingWithItsMessage) {
    CTestReading r = Reading();
    r.m_dJQPS = -1.0;
    const CRun run(g_pMethodCD, {r});
    EXPECT_EQ(run.m_nResult, 0);
    EXPECT_EQ(run.Printed(), "\n原始数据不正确导致出现不正常负值!");
}

TEST(Reduction, RefusesADrainedTestWhosePorePressurePassesTheCellPressure) {
    CTestReading r = Reading(100.0, 2);
    r.m_dKXYL = 100.02;
    const CRun run(g_pMethodCD, {r});
    EXPECT_EQ(run.m_nResult, 0);
    EXPECT_EQ(run.Printed(), "\n原始数据不正确导致σ3或σ1值错误!");
    EXPECT_TRUE(run.m_chart.m_arSigma3.isEmpty());
}

TEST(Reduction, RefusesAnUndrainedTestWhosePorePressurePassesTheCellPressure) {
    CTestReading r = Reading(100.0, 2);
    r.m_dKXYL = 100.02;
    const CRun run(g_pMethodCU, {r});
    EXPECT_EQ(run.m_nResult, 0);
    EXPECT_EQ(run.Printed(), "\n原始数据不正确导致σ'3或σ'1值错误!");
    EXPECT_EQ(run.m_chart.m_arSigma3.length(), 1); // what was appended before the fault stays
}

TEST(Reduction, FeedsCurveAndCirclesByTheRowsKind) {
    std::vector<CTestReading> readings;
    for (const int nKind : {0, 1, 2, 3, -1})
        readings.push_back(Reading(100.0, static_cast<Adesk::Int8>(nKind)));
    const CRun run(g_pMethodUU, readings);
    ASSERT_EQ(run.m_nResult, 1);
    EXPECT_EQ(run.m_chart.m_arSigma3.length(), 2); // kinds 1 and 2, at one cell pressure
    ASSERT_EQ(run.m_chart.m_arStrainSeries.GetSize(), 1);
    EXPECT_EQ(run.m_chart.m_arStrainSeries[0].length(), 2); // kinds 0 and 2
}

TEST(Reduction, CountsEveryRowTowardsTheGreatestValues) {
    CTestReading great = Reading(500.0, 3);
    great.m_dCLHDS = 1000.0;
    const CRun run(g_pMethodUU, {Reading(100.0, 2), great});
    EXPECT_EQ(run.m_chart.m_dMaxSigma1, 500.0 + ReduceReading(great, CTestMethod::UU).m_dDeviator);
}

TEST(Reduction, WritesSixTotalValuesAFailureRow) {
    const CRun run(g_pMethodUU, {Reading(100.0, 1)});
    const double s1 = 100.0 + 149.91;
    EXPECT_EQ(List(run.m_chart.m_arTotal), (std::vector<double>{100.0, s1, s1 + 100.0, s1 - 100.0,
                                                                (s1 + 100.0) / 2.0, (s1 - 100.0) / 2.0}));
    EXPECT_TRUE(run.m_chart.m_arEffective.isEmpty());
}

TEST(Reduction, WritesFourEffectiveValuesAFailureRowOfAnUndrainedTest) {
    CTestReading r = Reading(100.0, 1);
    r.m_dKXYL = 30.0;
    const CRun run(g_pMethodCU, {r});
    const double q = ReduceReading(r, CTestMethod::CU).m_dDeviator;
    const double s1 = 100.0 + q - 30.0, s3 = 70.0;
    EXPECT_EQ(List(run.m_chart.m_arEffective), (std::vector<double>{s3, s1, s1 + s3, (s1 + s3) / 2.0}));
    EXPECT_EQ(List(run.m_chart.m_arSigma3Eff), (std::vector<double>{70.0}));
    EXPECT_EQ(List(run.m_chart.m_arDeviatorEff), (std::vector<double>{q}));
}

TEST(Reduction, RepeatsTheTotalValuesWithoutPorePressure) {
    const CRun run(g_pMethodCU, {Reading(100.0, 2, 1), Reading(200.0, 2, 2)});
    ASSERT_EQ(run.m_nResult, 1);
    EXPECT_EQ(List(run.m_chart.m_arSigma3Eff), List(run.m_chart.m_arSigma3));
    EXPECT_EQ(run.m_chart.m_dGraphC, run.m_chart.m_dGraphCEff);
    EXPECT_EQ(run.m_chart.m_dGraphPhi, run.m_chart.m_dGraphPhiEff);
}

TEST(Reduction, StoresEffectiveStressesOfADrainedTestButTheGreatestUnadjusted) {
    CTestReading r = Reading(250.0, 2);
    r.m_dKXYL = 50.0;
    const CRun run(g_pMethodCD, {r});
    const double q = ReduceReading(r, CTestMethod::CD).m_dDeviator;
    EXPECT_EQ(run.m_chart.m_arTotal[0], 200.0);
    EXPECT_EQ(run.m_chart.m_arTotal[1], 250.0 + q - 50.0);
    EXPECT_EQ(run.m_chart.m_dMaxSigma1, 250.0 + q);
}

TEST(Reduction, DrawsCurvesWithoutCirclesAndSaysSo) {
    const CRun run(g_pMethodUU, {Reading(), Reading()});
    EXPECT_EQ(run.m_nResult, 1);
    EXPECT_EQ(run.m_chart.m_bNoEnvelope, 1);
    EXPECT_EQ(run.Printed(), "摩尔圆个数少于2个,无法图解切线。");
    EXPECT_EQ(run.m_chart.m_arStrainSeries.GetSize(), 1);
    EXPECT_EQ(run.m_chart.m_dGraphC, 0.0);
}

TEST(Reduction, StartsNoSeriesForAGroupOfFailureRowsOnly) {
    const CRun run(g_pMethodUU,
                   {Reading(100, 0, 1), Reading(100, 2, 1), Reading(200, 1, 2), Reading(300, 2, 3)});
    EXPECT_EQ(run.m_chart.m_arSigma3.length(), 3);
    EXPECT_EQ(run.m_chart.m_arStrainSeries.GetSize(), 2);
    EXPECT_EQ(run.m_chart.m_arStressSeries.GetSize(), 2);
}

TEST(Reduction, GroupsByAdjacencyNotByValue) {
    const CRun run(g_pMethodUU, {Reading(100), Reading(200), Reading(100)});
    EXPECT_EQ(run.m_chart.m_arStrainSeries.GetSize(), 3);
}

TEST(Reduction, ComparesCellPressuresExactly) {
    const CRun run(g_pMethodUU, {Reading(100), Reading(std::nextafterf(100.0F, 200.0F))});
    EXPECT_EQ(run.m_chart.m_arStrainSeries.GetSize(), 2);
}

TEST(Reduction, GivesTwoCirclesOfOneGroupForTwoFailureRows) {
    const CRun run(g_pMethodUU, {Reading(100, 1), Reading(100, 1)});
    EXPECT_EQ(run.m_chart.m_arSigma3.length(), 2);
    EXPECT_EQ(run.m_chart.m_bNoEnvelope, 0);
}

TEST(Reduction, TellsOneSpecimenFromSeveralByTheFirstRow) {
    EXPECT_EQ(CRun(g_pMethodUU, {Reading(100, 0, 1), Reading(200, 0, 1)}).m_chart.m_bSingleSpecimen, 1);
    EXPECT_EQ(CRun(g_pMethodUU, {Reading(100, 0, 1), Reading(200, 0, 2)}).m_chart.m_bSingleSpecimen, 0);
}

TEST(Reduction, RunTwiceDoublesEveryListButTheTotalStresses) {
    CBRENChart chart;
    const CPrintedText printed;
    chart.m_strSYFF = g_pMethodCU;
    for (int i = 0; i < 2; i++) {
        CReduction reduction(chart);
        ASSERT_TRUE(reduction.AddReading(Reading(100, 2, 1)) && reduction.AddReading(Reading(200, 2, 2)));
        ASSERT_EQ(reduction.Finish(), 1);
    }
    EXPECT_EQ(chart.m_arTotal.length(), 12);
    EXPECT_EQ(chart.m_arEffective.length(), 16);
    EXPECT_EQ(chart.m_arSigma3.length(), 4);
    EXPECT_EQ(chart.m_arSigma3Eff.length(), 4);
    EXPECT_EQ(chart.m_arStrainSeries.GetSize(), 4);
}

namespace {
class MeasuredSet : public testing::TestWithParam<std::string> {};
} // namespace

TEST_P(MeasuredSet, ReproducesItsFailureStressesOrIsRefused) {
    const std::string strSet = GetParam();
    const CRun run(MethodOf(strSet), ReadingsOf(strSet));
    if (strSet.starts_with("refused-")) {
        EXPECT_EQ(run.m_nResult, 0);
        EXPECT_EQ(run.Printed(), "\n原始数据不正确导致出现不正常负值!");
        return;
    }
    ASSERT_EQ(run.m_nResult, 1);
    const bool bDrained = run.m_chart.Method() == CTestMethod::CD;
    int nChecked = 0;
    for (auto& row : CsvRows(SetFolder(strSet) + "/expected.csv")) {
        if (row["what"] != "failure") continue;
        const bool bEffective = row["stress"] == "effective";
        // The total lists of a drained test hold effective stresses.
        const bool bSecond = bEffective && !bDrained;
        const CDoubleList& list = bSecond ? run.m_chart.m_arEffective : run.m_chart.m_arTotal;
        const int nAt = (std::stoi(row["specimen"]) - 1) * (bSecond ? 4 : 6);
        ASSERT_LT(nAt + 1, list.length());
        const double dTolerance = std::stod(row["tolerance_stress_kPa"]);
        EXPECT_NEAR(list[nAt], std::stod(row["sigma3_kPa"]), dTolerance);
        EXPECT_NEAR(list[nAt + 1], std::stod(row["sigma1_kPa"]), dTolerance);
        nChecked++;
    }
    EXPECT_GT(nChecked, 0);
    for (const double dValue : run.m_chart.m_arTotal)
        EXPECT_TRUE(std::isfinite(dValue));
}

INSTANTIATE_TEST_SUITE_P(All, MeasuredSet, testing::ValuesIn(ReadingSets()),
                         [](const auto& sample) { return TestName(sample.param); });
