#pragma once

#include <benchmark/benchmark.h>

#include "chart/chart_entity.h"

/// Runs the program's benchmarks while the chart's class is known; the program's exit status.
inline int RunChartBenchmarks(int nArguments, char** arguments) {
    CBRENChart::rxInit();
    benchmark::Initialize(&nArguments, arguments);
    if (benchmark::ReportUnrecognizedArguments(nArguments, arguments)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    CBRENChart::rxExit();
    return 0;
}
