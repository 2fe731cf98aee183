#include "analysis/test_method.h"
#include "chart/chart_entity.h"
#include "platform/acad/memory_filer.h"
#include "tests/support/filer_log.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

/// A chart whose every field differs from its default, numbered in the order of the record.
void Fill(CBRENChart& chart) {
    double dNext = 1.0;
    for (AcGePoint3d* pPoint : {&chart.m_ptBase, &chart.m_ptCurveOrigin, &chart.m_ptMohrOrigin,
                                &chart.m_ptTableOrigin, &chart.m_ptSummaryOrigin, &chart.m_ptEnvStart,
                                &chart.m_ptEnvEnd, &chart.m_ptEnvStartEff, &chart.m_ptEnvEndEff}) {
        pPoint->set(dNext, -dNext, 0.5);
        dNext += 1.0;
    }
    chart.m_nPolylineMode = 10;
    chart.m_nGCSY = 11;
    chart.m_nCurveRows = 12;
    chart.m_nCurveCols = 13;
    chart.m_dCurveStepY = 14;
    chart.m_dCurveStepX = 15;
    chart.m_nCurveCellW = 16;
    chart.m_nCurveCellH = 17;
    chart.m_nMohrRows = 18;
    chart.m_nMohrCols = 19;
    chart.m_dMohrStepY = 20;
    chart.m_dMohrStepX = 21;
    chart.m_nMohrCellW = 22;
    chart.m_nMohrCellH = 23;
    chart.m_dArrowHalfWidth = 24;
    chart.m_dTextHeight = 25;
    chart.m_dMaxSigma1 = 26;
    chart.m_nColor = 27;
    chart.m_arTotal.append(28);
    chart.m_arEffective.append(29);
    CDoubleList list;
    list.append(30);
    chart.m_arStrainSeries.Add(list);
    chart.m_arStressSeries.Add(list);
    chart.m_arStressSeries.Add(CDoubleList());
    chart.m_arSigma3.append(32);
    chart.m_arDeviator.append(33);
    chart.m_arSigma3Eff.append(34);
    chart.m_arDeviatorEff.append(35);
    chart.m_strGCBH = "三十六";
    chart.m_strZKBH = "37";
    chart.m_strQYBH = "38";
    chart.m_strSYFF = g_pMethodCU;
    chart.m_strSoilName = "40";
    chart.m_strWater = "41";
    chart.m_strLiquidity = "42";
    chart.m_strPlasticity = "43";
    chart.m_saCells.Add("44");
    chart.m_saCellsEff.Add("45");
    dNext = 46;
    for (double* pValue : {&chart.m_dCalcPhi, &chart.m_dCalcC, &chart.m_dCalcPhiEff, &chart.m_dCalcCEff,
                           &chart.m_dGraphPhi, &chart.m_dGraphC, &chart.m_dGraphPhiEff, &chart.m_dGraphCEff,
                           &chart.m_dAdoptPhi, &chart.m_dAdoptC, &chart.m_dAdoptPhiEff, &chart.m_dAdoptCEff})
        *pValue = dNext++;
    chart.m_bSingleSpecimen = 0;
    chart.m_bNoEnvelope = 1;
    chart.m_bColorChanging = 1;
}

/// The words of the chart's own part of the record.
std::vector<std::string> Words(const CBRENChart& chart) {
    CFilerLog whole, base;
    EXPECT_EQ(chart.dwgOutFields(&whole), Acad::eOk);
    EXPECT_EQ(chart.AcDbEntity::dwgOutFields(&base), Acad::eOk);
    const auto first = whole.Words().begin() + static_cast<std::ptrdiff_t>(base.Words().size());
    return {first, whole.Words().end()};
}

Acad::ErrorStatus Read(CBRENChart& chart, const CDbRecord& record) {
    CRecordReader reader(AcDb::kCopyFiler, record);
    return chart.dwgIn(&reader);
}

} // namespace

TEST(ChartRecord, HoldsItsValuesInThisOrder) {
    CBRENChart chart;
    Fill(chart);
    const std::vector<std::string> expected = {
        "Point3d 1", "Point3d 2",     "Point3d 3",  "Point3d 4", "Point3d 5",
        "Point3d 6", "Point3d 7",     "Point3d 8",  "Point3d 9", "Int16 10",
        "Int32 11",  "Int32 12",      "Int32 13",   "Double 14", "Double 15",
        "Int32 16",  "Int32 17",      "Int32 18",   "Int32 19",  "Double 20",
        "Double 21", "Int32 22",      "Int32 23",   "Double 24", "Double 25",
        "Double 26", "UInt16 27",     "Int32 1",    "Double 28", "Int32 1",
        "Double 29", "Int16 1",       "Int16 1",    "Double 30", "Int16 2",
        "Int16 1",   "Double 30",     "Int16 0",    "Int16 1",   "Double 32",
        "Int16 1",   "Double 33",     "Int16 1",    "Double 34", "Int16 1",
        "Double 35", "String 三十六", "String 37",  "String 38", "String 固结不排水剪",
        "String 40", "String 41",     "String 42",  "String 43", "Int32 1",
        "String 44", "Int32 1",       "String 45",  "Double 46", "Double 47",
        "Double 48", "Double 49",     "Double 50",  "Double 51", "Double 52",
        "Double 53", "Double 54",     "Double 55",  "Double 56", "Double 57",
        "Double 26", "Boolean 0",     "HardPointer"};
    EXPECT_EQ(Words(chart), expected);
}

TEST(ChartRecord, OfAnEmptyChartHasEmptyListsAndComesBackSo) {
    const CBRENChart chart;
    const CDbRecord record = RecordOf(chart, AcDb::kCopyFiler);
    CBRENChart copy;
    EXPECT_EQ(Read(copy, record), Acad::eOk);
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
    EXPECT_TRUE(copy.m_arTotal.isEmpty() && copy.m_arStrainSeries.GetSize() == 0 &&
                copy.m_arSigma3.isEmpty() && copy.m_saCells.GetSize() == 0);
}

TEST(ChartRecord, BringsEveryFieldBackButThePassingFlags) {
    CBRENChart chart;
    Fill(chart);
    CBRENChart copy;
    EXPECT_EQ(Read(copy, RecordOf(chart, AcDb::kCopyFiler)), Acad::eOk);
    EXPECT_EQ(Words(copy), Words(chart));
    EXPECT_STREQ(copy.m_strGCBH.GetString(), "三十六");
    EXPECT_EQ(copy.m_bNoEnvelope, 0) << "a reloaded chart draws its line again";
    EXPECT_EQ(copy.m_bColorChanging, 0);
}

TEST(ChartRecord, TakesTheSecondOfTheTwoGreatestStresses) {
    CBRENChart chart;
    chart.m_dMaxSigma1 = 300.0;
    CRecordWriter writer(AcDb::kCopyFiler);
    chart.dwgOut(&writer);
    CDbRecord record = writer.Take();
    // The second one lies before the flag (4 bytes), which is the last: references stand apart.
    const double dSecond = 450.0;
    std::memcpy(record.m_arBytes.data() + record.m_arBytes.size() - 12, &dSecond, sizeof dSecond);
    CBRENChart copy;
    Read(copy, record);
    EXPECT_EQ(copy.m_dMaxSigma1, 450.0);
}

TEST(ChartRecord, LosesTheValuesOfAListLongerThanItsCountHolds) {
    CBRENChart chart;
    chart.m_arSigma3.setLogicalLength(32768);
    chart.m_arDeviator.append(7.0);
    CDoubleList longest;
    longest.setLogicalLength(40000);
    chart.m_arStrainSeries.Add(longest);
    CBRENChart copy;
    EXPECT_EQ(Read(copy, RecordOf(chart, AcDb::kCopyFiler)), Acad::eOk);
    EXPECT_TRUE(copy.m_arSigma3.isEmpty());
    ASSERT_EQ(copy.m_arStrainSeries.GetSize(), 1);
    EXPECT_TRUE(copy.m_arStrainSeries.GetAt(0).isEmpty());
    ASSERT_EQ(copy.m_arDeviator.length(), 1) << "what follows is read as it was written";
    EXPECT_EQ(copy.m_arDeviator[0], 7.0);
}

TEST(ChartRecord, HoldsAsManyValuesAsItsCountSays) {
    CBRENChart chart;
    chart.m_arSigma3.setLogicalLength(65538); // in 16 bits: 2
    chart.m_arSigma3[1] = 5.0;
    CBRENChart copy;
    Read(copy, RecordOf(chart, AcDb::kCopyFiler));
    ASSERT_EQ(copy.m_arSigma3.length(), 2);
    EXPECT_EQ(copy.m_arSigma3[1], 5.0);
}

TEST(ChartRecord, CutsATextAtACharacterOfAHundredBytes) {
    CBRENChart chart;
    std::string strName(99, 'x');
    chart.m_strSoilName = (strName + "土").c_str();
    chart.m_strWater = std::string(100, '9').c_str();
    CBRENChart copy;
    Read(copy, RecordOf(chart, AcDb::kCopyFiler));
    EXPECT_EQ(copy.m_strSoilName.View(), strName);
    EXPECT_EQ(copy.m_strWater.GetLength(), 100);
}

TEST(ChartRecord, ReadTwiceDoublesTheCircleListsAndNothingElse) {
    CBRENChart chart;
    Fill(chart);
    const CDbRecord record = RecordOf(chart, AcDb::kCopyFiler);
    CBRENChart copy;
    Read(copy, record);
    Read(copy, record);
    for (CDoubleList CBRENChart::*pList : {&CBRENChart::m_arSigma3, &CBRENChart::m_arDeviator,
                                           &CBRENChart::m_arSigma3Eff, &CBRENChart::m_arDeviatorEff}) {
        EXPECT_EQ((copy.*pList).length(), 2);
        (copy.*pList).setLogicalLength(1);
    }
    EXPECT_EQ(Words(copy), Words(chart));
}

TEST(ChartRecord, ThatIsCutOffAnywhereLeavesAChartAndItsTraceWithTheFiler) {
    CBRENChart chart;
    Fill(chart);
    const CDbRecord whole = RecordOf(chart, AcDb::kCopyFiler);
    const std::size_t nBase = [&] {
        CRecordWriter writer(AcDb::kCopyFiler);
        chart.AcDbEntity::dwgOutFields(&writer);
        return writer.Take().m_arBytes.size();
    }();
    for (std::size_t nBytes = 0; nBytes < whole.m_arBytes.size(); ++nBytes) {
        CDbRecord part = whole;
        part.m_arBytes.resize(nBytes);
        CRecordReader reader(AcDb::kCopyFiler, part);
        CBRENChart copy;
        EXPECT_EQ(copy.dwgIn(&reader), nBytes < nBase ? Acad::eFilerError : Acad::eOk) << nBytes;
        EXPECT_EQ(reader.filerStatus(), Acad::eFilerError) << nBytes;
    }
}
