// Reading a project of 1,000 samples with 60 readings each through the record class, which finds the running
// project and connects anew for every sample, against the plain C interface of the same database.

#include "data/criteria.h"
#include "data/san_zhou_csxm_record.h"
#include "platform/windows/profile.h"
#include "tests/support/project.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace {
constexpr int kSamples = 1000;
constexpr int kReadings = 60;

[[noreturn]] void Fail(const char* pszWhat) {
    std::fprintf(stderr, "%s\n", pszWhat);
    std::abort();
}

std::string BoreholeOf(int nSample) {
    return "ZK" + std::to_string(nSample / 10 + 1);
}

std::string SampleOf(int nSample) {
    return std::to_string(nSample / 10 + 1) + "-" + std::to_string(nSample % 10 + 1);
}

/// The project, made once for both.
CTestProject& Project() {
    static CTestProject s_project;
    static const bool s_bFilled = [] {
        WritePrivateProfileStringA("TVTool", "ProjectIni", "Project.ini",
                                   (s_project.Root() + "/tervo.ini").c_str());
        s_project.m_pDatabase->BeginTransaction();
        for (int nSample = 0; nSample < kSamples; ++nSample)
            for (int i = 0; i < kReadings; ++i)
                s_project.AddReading(BoreholeOf(nSample).c_str(), SampleOf(nSample).c_str(), i / 20 + 1,
                                     i % 20 + 1, 100.0 * (i / 20 + 1), 3.25 * i, 60.5 * (i % 20), 0);
        s_project.Execute("CREATE INDEX i_z_c_SanZhouCSXM ON z_c_SanZhouCSXM (GCSY, ZKBH, QYBH)");
        s_project.m_pDatabase->CommitTransaction();
        return true;
    }();
    (void)s_bFilled;
    return s_project;
}

void RecordClass(benchmark::State& state) {
    Project();
    while (state.KeepRunning()) {
        double dSum = 0.0;
        int nRows = 0;
        for (int nSample = 0; nSample < kSamples; ++nSample) {
            CSanZhouCSXMRecord record;
            const CString strCriterion =
                ReadingsCriterion(1, BoreholeOf(nSample).c_str(), SampleOf(nSample).c_str());
            if (!record.OpenRows(record.QueryFor(strCriterion), 0, 1))
                Fail("the record class cannot open its rows");
            for (int nMoved = record.MoveFirstRow(); nMoved == 0; nMoved = record.MoveNextRow(), ++nRows)
                dSum += record.m_fCLHDS;
            record.CloseRows();
        }
        if (nRows != kSamples * kReadings) Fail("the record class did not read every row");
        benchmark::DoNotOptimize(dSum);
    }
    state.SetItemsProcessed(state.iterations() * kSamples * kReadings);
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
        for (int nSample = 0; nSample < kSamples; ++nSample) {
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
        if (nRows != kSamples * kReadings) Fail("the plain reading did not read every row");
        sqlite3_finalize(pStatement);
        sqlite3_close(pDatabase);
        benchmark::DoNotOptimize(dSum);
    }
    state.SetItemsProcessed(state.iterations() * kSamples * kReadings);
}
BENCHMARK(PlainSqlite)->Unit(benchmark::kMillisecond);
BENCHMARK(RecordClass)->Unit(benchmark::kMillisecond);
} // namespace
