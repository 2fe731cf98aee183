// What charts cost to draw and to plot: a regeneration of 1,000 of them, and a PDF of 100 sheets, the latter
// against a short program that hands the same primitives to the painter.

#include "bench/chart_benchmarks.h"
#include "bench/counted_memory.h"
#include "bench/plain_painter.h"
#include "bench/sample_chart.h"
#include "commands/sheet_layout.h"
#include "host/console/redraw.h"
#include "host/plot/headless.h"
#include "tests/support/drawing.h"

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {
constexpr int g_nCharts = 1000;
constexpr int g_nSheets = 100;

/// Charts in a row of sheets, drawn with real fonts.
class CChartRow {
public:
    explicit CChartRow(int nCharts) {
        SetTextMetrics(&m_fonts);
        m_ids = AddSampleSheets(nCharts);
        DrawAll(Drawing());
    }
    CChartRow(const CChartRow&) = delete;
    CChartRow& operator=(const CChartRow&) = delete;
    ~CChartRow() { SetTextMetrics(nullptr); }

    AcDbDatabase& Drawing() { return m_drawing.Database(); }
    CFonts& Fonts() { return m_fonts; }

    std::size_t Dots() {
        std::size_t nDots = 0;
        for (const AcDbObjectId& id : m_ids)
            for (const CPlinePrimitive& pline : Shapes<CPlinePrimitive>(PictureOf(id)))
                nDots += pline.m_arVertices.size() == 3 ? 1 : 0; // a dot is two half circles
        return nDots;
    }
    /// A page for each chart. They point into the drawing.
    std::vector<CPlotPage> Pages() const {
        std::vector<CPlotPage> pages;
        double x = 0.0;
        for (const AcDbObjectId& id : m_ids) {
            pages.push_back({{x, 0.0, x + 210.0, g_dSheetHeight}, {{&PictureOf(id), 7}}});
            x += g_dSheetStep;
        }
        return pages;
    }

private:
    static const CDisplayList& PictureOf(AcDbObjectId id) { return *CDbOpen<AcDbEntity>(id)->Picture(); }

    CTestDrawing m_drawing;
    CFonts m_fonts{{}};
    std::vector<AcDbObjectId> m_ids;
};

void Regenerate(benchmark::State& state) {
    CChartRow row(g_nCharts);
    const std::uint64_t nBefore = AllocationCount();
    while (state.KeepRunning())
        DrawAll(row.Drawing());
    const double dRuns = static_cast<double>(state.iterations());
    state.SetItemsProcessed(state.iterations() * g_nCharts);
    const double dAllocations = static_cast<double>(AllocationCount() - nBefore) / dRuns;
    state.counters["allocations/chart"] = dAllocations / g_nCharts;
    state.counters["allocations/dot"] = dAllocations / static_cast<double>(row.Dots());
}
BENCHMARK(Regenerate)->Unit(benchmark::kMillisecond);

void PlotPdf(benchmark::State& state) {
    CChartRow row(g_nSheets);
    const std::vector<CPlotPage> pages = row.Pages();
    CPlotOptions options;
    options.m_fnLinetype = [](const std::string&) { return std::vector<double>{0.5, -0.25}; };
    options.m_dLinetypeScale = 10.0;
    const std::filesystem::path path = std::filesystem::temp_directory_path() / "tervo-bench.pdf";
    std::string strError;
    while (state.KeepRunning())
        if (!Plot(pages, options, row.Fonts(), path, &strError)) return state.SkipWithError(strError.c_str());
    state.SetItemsProcessed(state.iterations() * g_nSheets);
    state.counters["bytes/page"] = static_cast<double>(std::filesystem::file_size(path)) / g_nSheets;
    std::filesystem::remove(path);
}
BENCHMARK(PlotPdf)->Unit(benchmark::kMillisecond);

void PlainPdf(benchmark::State& state) {
    CChartRow row(g_nSheets);
    const std::vector<CPlotPage> pages = row.Pages();
    qsizetype nBytes = 0;
    while (state.KeepRunning())
        nBytes = PaintPlainly(pages).size();
    state.SetItemsProcessed(state.iterations() * g_nSheets);
    state.counters["bytes/page"] = static_cast<double>(nBytes) / g_nSheets;
}
BENCHMARK(PlainPdf)->Unit(benchmark::kMillisecond);
} // namespace

int main(int nArguments, char** arguments) {
    StartHeadlessQt();
    return RunChartBenchmarks(nArguments, arguments);
}
