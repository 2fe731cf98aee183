// Where the drawing database spends its time: appending and opening entities, and filing charts, the latter
// against copying the same bytes.

#include "bench/sample_chart.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/memory_filer.h"
#include "tests/support/drawing.h"

#include <benchmark/benchmark.h>

#include <cstring>

namespace {
constexpr int g_nPolylines = 100'000;
constexpr int g_nCharts = 10'000;

std::vector<AcDbObjectId> AppendPolylines(AcDbDatabase& database) {
    std::vector<AcDbObjectId> ids(g_nPolylines);
    const CDbOpen<AcDbBlockTableRecord> pSpace(database.ModelSpaceId(), AcDb::kForWrite);
    for (AcDbObjectId& id : ids) {
        auto* const pPolyline = new AcDbPolyline(2);
        pPolyline->addVertexAt(0, {0.0, 0.0});
        pPolyline->addVertexAt(1, {10.0, 5.0});
        pSpace->appendAcDbEntity(id, pPolyline);
        pPolyline->close();
    }
    return ids;
}

/// Into a new drawing each time, which is thrown away outside the measure.
void AppendEntities(benchmark::State& state) {
    while (state.KeepRunning()) {
        auto pDatabase = std::make_unique<AcDbDatabase>();
        benchmark::DoNotOptimize(AppendPolylines(*pDatabase));
        state.PauseTiming();
        pDatabase.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * g_nPolylines);
}
BENCHMARK(AppendEntities)->Unit(benchmark::kMillisecond);

void OpenAndCloseEntities(benchmark::State& state) {
    AcDbDatabase database;
    const std::vector<AcDbObjectId> ids = AppendPolylines(database);
    database.UndoLog().SetRecording(state.range(1) != 0);
    const auto mode = static_cast<AcDb::OpenMode>(state.range(0));
    while (state.KeepRunning())
        for (const AcDbObjectId& id : ids) {
            const CDbOpen<AcDbPolyline> pPolyline(id, mode);
            benchmark::DoNotOptimize(pPolyline.Get());
        }
    state.SetItemsProcessed(state.iterations() * g_nPolylines);
}
BENCHMARK(OpenAndCloseEntities)
    ->ArgNames({"write", "undo"})
    ->Args({AcDb::kForRead, 0})
    ->Args({AcDb::kForWrite, 0})
    ->Args({AcDb::kForWrite, 1})
    ->Unit(benchmark::kMillisecond);

CDbRecord ChartRecord() {
    CBRENChart chart;
    FillSampleChart(chart);
    return RecordOf(chart, AcDb::kFileFiler);
}

void SetBytes(benchmark::State& state, const CDbRecord& record) {
    state.SetBytesProcessed(state.iterations() * g_nCharts *
                            static_cast<std::int64_t>(record.m_arBytes.size()));
}

void FileChartsOut(benchmark::State& state) {
    CBRENChart chart;
    FillSampleChart(chart);
    while (state.KeepRunning())
        for (int i = 0; i < g_nCharts; i++)
            benchmark::DoNotOptimize(RecordOf(chart, AcDb::kFileFiler).m_arBytes.data());
    SetBytes(state, RecordOf(chart, AcDb::kFileFiler));
}
BENCHMARK(FileChartsOut)->Unit(benchmark::kMillisecond);

void FileChartsIn(benchmark::State& state) {
    const CDbRecord record = ChartRecord();
    while (state.KeepRunning())
        for (int i = 0; i < g_nCharts; i++) {
            CBRENChart chart;
            CRecordReader reader(AcDb::kFileFiler, record);
            benchmark::DoNotOptimize(chart.dwgIn(&reader));
        }
    SetBytes(state, record);
}
BENCHMARK(FileChartsIn)->Unit(benchmark::kMillisecond);

/// What the filing is held against.
void CopyTheSameBytes(benchmark::State& state) {
    const CDbRecord record = ChartRecord();
    std::vector<std::byte> copy(record.m_arBytes.size());
    while (state.KeepRunning())
        for (int i = 0; i < g_nCharts; i++) {
            std::memcpy(copy.data(), record.m_arBytes.data(), copy.size());
            benchmark::DoNotOptimize(copy.data());
            benchmark::ClobberMemory();
        }
    SetBytes(state, record);
}
BENCHMARK(CopyTheSameBytes)->Unit(benchmark::kMillisecond);
} // namespace
