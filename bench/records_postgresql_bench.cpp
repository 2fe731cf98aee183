// The same reading as records_bench.cpp, on PostgreSQL: the record class, which connects anew for every
// sample, against a plain ODBC program that does so too and reads the same rows. The server is one of the
// benchmark's own.

#include "bench/plain_odbc.h"
#include "bench/sample_project.h"

#include <benchmark/benchmark.h>

namespace {
/// The project, made once for both.
CTestProject& Project() {
    static CTestProject s_project(TestEngine::Postgresql);
    static const bool s_bFilled = [] {
        FillSamples(&s_project);
        s_project.Execute("ANALYZE z_c_SanZhouCSXM");
        return true;
    }();
    (void)s_bFilled;
    return s_project;
}

void RecordClass(benchmark::State& state) {
    Project();
    while (state.KeepRunning())
        ReadSamplesByRecordClass();
    state.SetItemsProcessed(state.iterations() * g_nSamples * g_nReadings);
}

void PlainOdbc(benchmark::State& state) {
    const std::string strConnection =
        CConnectionText(Project().m_database.ConnectionText()).Without("Provider");
    while (state.KeepRunning())
        ReadSamplesByPlainOdbc(strConnection);
    state.SetItemsProcessed(state.iterations() * g_nSamples * g_nReadings);
}
BENCHMARK(PlainOdbc)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(RecordClass)->Unit(benchmark::kMillisecond)->UseRealTime();
} // namespace
