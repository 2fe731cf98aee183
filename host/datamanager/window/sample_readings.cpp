#include "host/datamanager/window/sample_readings.h"

#include <array>

#include "host/datamanager/numbers.h"

namespace {

constexpr std::array<std::string_view, 13> g_arColumns = {"SJBH",  "SHJHXH", "WY",    "SYGD", "SYZJ",
                                                          "CLHXS", "GJKXYL", "CLHDS", "ZXBX", "JQPS",
                                                          "KXYL",  "GJPS",   "JLLX"};

constexpr std::size_t g_nSJBH = 0;
constexpr std::size_t g_nFirstReal = 2;
constexpr std::size_t g_nJLLX = 12;

/// Where the real columns go, from g_nFirstReal on.
constexpr std::array<double CTestReading::*, 10> g_arReals = {
    &CTestReading::m_dWY,     &CTestReading::m_dSYGD,  &CTestReading::m_dSYZJ, &CTestReading::m_dCLHXS,
    &CTestReading::m_dGJKXYL, &CTestReading::m_dCLHDS, &CTestReading::m_dZXBX, &CTestReading::m_dJQPS,
    &CTestReading::m_dKXYL,   &CTestReading::m_dGJPS};

CTestReading Reading(const CDbCursor& rows, std::size_t nRow) {
    CTestReading reading;
    reading.m_nSJBH = static_cast<Adesk::Int32>(CellWhole(rows.Cell(nRow, g_nSJBH)));
    reading.m_nJLLX = static_cast<Adesk::Int8>(CellWhole(rows.Cell(nRow, g_nJLLX)));
    // The suite's records hold 4-byte floats.
    for (std::size_t i = 0; i < g_arReals.size(); ++i)
        reading.*g_arReals[i] = static_cast<float>(CellNumber(rows.Cell(nRow, g_nFirstReal + i)));
    return reading;
}

} // namespace

std::span<const std::string_view> ReadingColumns() {
    return g_arColumns;
}

CSampleReadings ReadSampleReadings(CDbConnection& database, std::int32_t nGCSY, const std::string& strZKBH,
                                   const std::string& strQYBH) {
    const std::array<CDbValue, 3> arParameters = {std::int64_t{nGCSY}, strZKBH, strQYBH};
    const auto pRows = database.Query("SELECT " + ColumnList(g_arColumns) +
                                          " FROM z_c_SanZhouCSXM WHERE GCSY = ? AND ZKBH = ? AND QYBH = ?"
                                          " ORDER BY SJBH, SHJHXH",
                                      arParameters);
    CSampleReadings readings;
    readings.m_arRows = RowTexts(*pRows, g_tableSanZhouCSXM, g_arColumns);
    for (std::size_t nRow = 0; nRow < pRows->RowCount(); ++nRow)
        readings.m_arReadings.push_back(Reading(*pRows, nRow));
    return readings;
}
