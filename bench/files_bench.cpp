// What drawings cost to save and to open: a DWG file of 1,000 charts against the same bytes written and read
// plainly, and a DXF file of 100 exploded sheets against python3-ezdxf writing the same entities.

#include "bench/chart_benchmarks.h"
#include "bench/sample_chart.h"
#include "host/files/drawing_storage.h"
#include "tests/support/drawing.h"
#include "tests/temp_folder.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr int g_nCharts = 1000;
constexpr int g_nSheets = 100;

void CountBytes(benchmark::State& state, std::size_t nBytes) {
    state.SetBytesProcessed(static_cast<std::int64_t>(nBytes) * state.iterations());
    state.counters["bytes"] = static_cast<double>(nBytes);
}

class CSavedDrawing {
public:
    explicit CSavedDrawing(int nCharts) { AddSampleSheets(nCharts); }

    /// Puts what charts explode into in their place; the number of entities.
    std::size_t Explode() {
        const AcDbObjectId idModel = m_drawing.Database().ModelSpaceId();
        std::size_t nParts = 0;
        for (const AcDbObjectId& idChart : CDbOpen<AcDbBlockTableRecord>(idModel)->EntityIds()) {
            CEntities parts = Exploded(*CDbOpen<AcDbEntity>(idChart).Get());
            for (std::unique_ptr<AcDbEntity>& pPart : parts) {
                AcDbEntity* const pEntity = pPart.release();
                CDbOpen<AcDbBlockTableRecord>(idModel, AcDb::kForWrite)->appendAcDbEntity(pEntity);
                pEntity->close();
            }
            nParts += parts.size();
            CDbOpen<AcDbEntity>(idChart, AcDb::kForWrite)->erase();
        }
        return nParts;
    }

    std::string Write(CDrawingFormat format) { return WriteDrawing(m_drawing.Database(), format).m_strBytes; }
    std::string Path() const { return m_folder.Path("drawing"); }

private:
    CTestDrawing m_drawing;
    CTempFolder m_folder;
};

void Save(benchmark::State& state, CDrawingFormat format, CSavedDrawing& drawing) {
    std::size_t nBytes = 0;
    while (state.KeepRunning()) {
        const std::string strBytes = drawing.Write(format);
        StoreDrawing(drawing.Path(), strBytes);
        nBytes = strBytes.size();
    }
    CountBytes(state, nBytes);
}

void SaveDwg(benchmark::State& state) {
    CSavedDrawing drawing(g_nCharts);
    Save(state, CDrawingFormat::Dwg, drawing);
}
BENCHMARK(SaveDwg)->Unit(benchmark::kMillisecond);

/// As safely as a drawing is: the bytes are on the disk at the end.
void WritePlainly(benchmark::State& state) {
    CSavedDrawing drawing(g_nCharts);
    const std::string strBytes = drawing.Write(CDrawingFormat::Dwg);
    while (state.KeepRunning()) {
        const int nFile = open(drawing.Path().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        const bool bWritten =
            write(nFile, strBytes.data(), strBytes.size()) == static_cast<ssize_t>(strBytes.size()) &&
            fsync(nFile) == 0;
        close(nFile);
        if (!bWritten) return state.SkipWithError("the bytes could not be written");
    }
    CountBytes(state, strBytes.size());
}
BENCHMARK(WritePlainly)->Unit(benchmark::kMillisecond);

void OpenDwg(benchmark::State& state) {
    CSavedDrawing drawing(g_nCharts);
    const std::string strBytes = drawing.Write(CDrawingFormat::Dwg);
    StoreDrawing(drawing.Path(), strBytes);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(LoadDrawing(drawing.Path()));
    CountBytes(state, strBytes.size());
}
BENCHMARK(OpenDwg)->Unit(benchmark::kMillisecond);

void ReadPlainly(benchmark::State& state) {
    CSavedDrawing drawing(g_nCharts);
    std::string strBytes = drawing.Write(CDrawingFormat::Dwg);
    StoreDrawing(drawing.Path(), strBytes);
    while (state.KeepRunning()) {
        std::ifstream stream(drawing.Path(), std::ios::binary);
        stream.read(strBytes.data(), static_cast<std::streamsize>(strBytes.size()));
        benchmark::DoNotOptimize(strBytes.data());
        benchmark::ClobberMemory();
    }
    CountBytes(state, strBytes.size());
}
BENCHMARK(ReadPlainly)->Unit(benchmark::kMillisecond);

void SaveDxf(benchmark::State& state) {
    CSavedDrawing drawing(g_nSheets);
    state.counters["entities"] = static_cast<double>(drawing.Explode());
    Save(state, CDrawingFormat::Dxf, drawing);
}
BENCHMARK(SaveDxf)->Unit(benchmark::kMillisecond);

/// The other program's times, by its own clock: for a drawing made of the entities, and for saving it alone.
void SaveDxfByEzdxf(benchmark::State& state) {
    CSavedDrawing drawing(g_nSheets);
    drawing.Explode();
    StoreDrawing(drawing.Path(), drawing.Write(CDrawingFormat::Dxf));
    const std::string strCommand = "/usr/bin/python3 " BENCH_FOLDER "/ezdxf_save.py '" + drawing.Path() + "'";
    double dSaving = 0.0;
    while (state.KeepRunning()) {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pPipe(popen(strCommand.c_str(), "r"), pclose);
        std::array<char, 200> line{};
        double dMaking = 0.0, dEntities = 0.0;
        if (!pPipe || !std::fgets(line.data(), line.size(), pPipe.get()) ||
            !(std::istringstream(line.data()) >> dEntities >> dMaking >> dSaving))
            return state.SkipWithError("python3-ezdxf could not be run");
        state.SetIterationTime(dMaking + dSaving);
        state.counters["entities"] = dEntities;
        state.counters["saving alone, ms"] = dSaving * 1000.0;
    }
}
BENCHMARK(SaveDxfByEzdxf)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);
} // namespace

int main(int nArguments, char** arguments) {
    return RunChartBenchmarks(nArguments, arguments);
}
