// Reading a project of 1,000 samples with 60 readings each through the record class, which finds the running
// project and connects anew for every sample, against the plain C interface of the same database.

#include "bench/sample_project.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>

namespace {
/// The project, made once for both.
CTestProject& Project() {
    static CTestProject s_project;
    static const bool s_bFilled = (FillSamples(&s_project), true);
    (void)s_bFilled;
    return s_project;
}

void RecordClass(benchmark::State& state) {
    Project();
    while (state.KeepRunning())
        ReadSamplesByRecordClass();
    state.SetItemsProcessed(state.iterations() * g_nSamples * g_nReadings);
}

struct CPlainRow {
    int m_nGCSY, m_nSJBH, m_nSHJHXH, m_nJLLX;
    char m_szZKBH[256], m_szQYBH[256];
    float m_arValues[10];
};

void ReadPlainRow(sqlite3_stmt* pStatement, CPlainRow* pRow) {
    pRow->m_nGCSY = sqlite3_column_int(pStatement, 0);
    std::snprintf(pRow->m_szZKBH, sizeof pRow->m_szZKBH, "%s",
                  reinterpret_cast<const char*>(sqlite3_column_text(pStatement, 1)));
    std::snprintf(pRow->m_szQYBH, sizeof pRow->m_szQYBH, "%s",
                  reinterpret_cast<const char*>(sqlite3_column_text(pStatement, 2)));
    pRow->m_nSJBH = sqlite3_column_int(pStatement, 3);
    pRow->m_nSHJHXH = sqlite3_column_int(pStatement, 4);
    for (int i = 0; i < 10; ++i)
        pRow->m_arValues[i] = static_cast<float>(sqlite3_column_double(pStatement, 5 + i));
    pRow->m_nJLLX = sqlite3_column_int(pStatement, 15);
}

/// One connection and one prepared statement for all samples: the least that reading the rows can cost.
void PlainSqlite(benchmark::State& state) {
    const std::string strPath = Project().m_strDatabase;
    while (state.KeepRunning()) {
        sqlite3* pDatabase = nullptr;
        sqlite3_stmt* pStatement = nullptr;
        if (sqlite3_open_v2(strPath.c_str(), &pDatabase, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK ||
            sqlite3_prepare_v2(pDatabase,
                               "SELECT * FROM z_c_SanZhouCSXM WHERE GCSY > -1 and GCSY = 1 AND ZKBH = ? AND "
                               "QYBH = ? ORDER BY GCSY,ZKBH,QYBH,SJBH,SHJHXH",
                               -1, &pStatement, nullptr) != SQLITE_OK)
            Fail(sqlite3_errmsg(pDatabase));
        double dSum = 0.0;
        int nRows = 0;
        for (int nSample = 0; nSample < g_nSamples; ++nSample) {
            const std::string strZKBH = BoreholeOf(nSample), strQYBH = SampleOf(nSample);
            sqlite3_bind_text(pStatement, 1, strZKBH.c_str(), -1, SQLITE_STATIC);
            sqlite3_bind_text(pStatement, 2, strQYBH.c_str(), -1, SQLITE_STATIC);
            CPlainRow row;
            for (; sqlite3_step(pStatement) == SQLITE_ROW; ++nRows) {
                ReadPlainRow(pStatement, &row);
                dSum += row.m_arValues[5];
            }
            sqlite3_reset(pStatement);
        }
        if (nRows != g_nSamples * g_nReadings) Fail("the plain reading did not read every row");
        sqlite3_finalize(pStatement);
        sqlite3_close(pDatabase);
        benchmark::DoNotOptimize(dSum);
    }
    state.SetItemsProcessed(state.iterations() * g_nSamples * g_nReadings);
}
BENCHMARK(PlainSqlite)->Unit(benchmark::kMillisecond);
BENCHMARK(RecordClass)->Unit(benchmark::kMillisecond);
} // namespace
