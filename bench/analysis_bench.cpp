// Where the analysis spends its time: reducing readings, and searching the envelope among many circles.

#include "analysis/reduction.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace {
/// Three specimens of twenty readings each, as a laboratory takes them.
std::vector<CTestReading> Sample() {
    std::vector<CTestReading> readings;
    for (int nSpecimen = 1; nSpecimen <= 3; nSpecimen++)
        for (int i = 0; i < 20; i++) {
            CTestReading reading;
            reading.m_nSJBH = nSpecimen;
            reading.m_dWY = 100.0 * nSpecimen;
            reading.m_dSYGD = 80.0;
            reading.m_dSYZJ = 39.1;
            reading.m_dCLHXS = 1.5;
            reading.m_dCLHDS = 60.0 * nSpecimen * (1.0 - std::exp(-0.3 * i));
            reading.m_dZXBX = 60.0 * i;
            reading.m_dKXYL = 1.3 * i;
            reading.m_dGJPS = 2.5;
            reading.m_nJLLX = i == 19 ? 2 : 0;
            readings.push_back(reading);
        }
    return readings;
}

void ReduceOneSample(benchmark::State& state) {
    const std::vector<CTestReading> readings = Sample();
    while (state.KeepRunning()) {
        CBRENChart chart;
        chart.m_strSYFF = g_pMethodCU;
        CReduction reduction(chart);
        for (const CTestReading& reading : readings)
            benchmark::DoNotOptimize(reduction.AddReading(reading));
        benchmark::DoNotOptimize(reduction.Finish());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(readings.size()));
    state.SetLabel("rows");
}
BENCHMARK(ReduceOneSample);

void FindEnvelopeOfCircles(benchmark::State& state) {
    CMorCircles circles;
    for (int i = 0; i < state.range(0); i++) {
        const double dCentre = 100.0 + 50.0 * i;
        circles.AddCircle(dCentre, 20.0 + 0.4 * dCentre + 7.0 * std::sin(1.7 * i));
    }
    double dC = 0.0, dPhi = 0.0;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(circles.FindEnvelope(&dC, &dPhi));
}
BENCHMARK(FindEnvelopeOfCircles)->Arg(3)->Arg(10)->Arg(30)->Arg(100);
} // namespace
