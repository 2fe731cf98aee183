// What the window's view costs on a drawing of 100 sheets at 1920 x 1080: frames while it is panned and
// zoomed, and while a grip of a chart is dragged. items/s are frames.

#include "bench/chart_benchmarks.h"
#include "bench/sample_chart.h"
#include "commands/sheet_layout.h"
#include "host/console/redraw.h"
#include "host/desktop/grip_drag.h"
#include "host/desktop/view_image.h"
#include "host/plot/headless.h"
#include "tests/support/drawing.h"

#include <QtGui/QPainter>
#include <benchmark/benchmark.h>

namespace {

constexpr int g_nSheets = 100;
constexpr int g_nMiddleSheet = g_nSheets / 2;
const QSize g_screen(1920, 1080);

/// Sheets in a row, shown in a view, and the screen that the view comes onto.
class CShownRow {
public:
    CShownRow() {
        SetTextMetrics(&m_fonts);
        m_ids = AddSampleSheets(g_nSheets);
        DrawAll(Drawing());
        m_scene.Sync(Drawing());
    }
    CShownRow(const CShownRow&) = delete;
    CShownRow& operator=(const CShownRow&) = delete;
    ~CShownRow() { SetTextMetrics(nullptr); }

    AcDbDatabase& Drawing() { return m_drawing.Database(); }
    CScene& Scene() { return m_scene; }
    AcDbObjectId Chart() const { return m_ids[g_nMiddleSheet]; }

    /// The view with so many sheets across, in the middle of the row.
    CViewFrame FrameOf(double dSheets) const {
        return {{g_nMiddleSheet * g_dSheetStep, g_dSheetHeight / 2.0},
                g_screen.width() / (dSheets * g_dSheetStep),
                g_screen};
    }
    /// A frame as the window paints it; pOver lies over the drawing.
    void Paint(const CViewFrame& frame, const CLoosePicture* pOver = nullptr) {
        m_image.Show({m_scene, [](const CSceneItem&) { return std::nullopt; }, 1}, frame, m_colors, 1.0);
        QPainter painter(&m_onScreen);
        painter.drawImage(QPointF(), m_image.Image());
        painter.setRenderHint(QPainter::Antialiasing);
        if (pOver)
            PaintShapes(painter, pOver->m_arShapes, pOver->m_ptOrigin, QRectF(QPointF(), QSizeF(g_screen)),
                        {frame, m_colors, 1.5, m_colors.m_dragged});
    }

private:
    CTestDrawing m_drawing;
    CFonts m_fonts{{}};
    CScene m_scene{m_fonts};
    CViewColors m_colors = DarkColors();
    CViewImage m_image;
    QImage m_onScreen{g_screen, QImage::Format_RGB32};
    std::vector<AcDbObjectId> m_ids;
};

void Pan(benchmark::State& state) {
    CShownRow row;
    CViewFrame frame = row.FrameOf(static_cast<double>(state.range(0)));
    row.Paint(frame);
    int nFrame = 0;
    while (state.KeepRunning()) {
        const double dSense = nFrame++ / 40 % 2 == 0 ? 1.0 : -1.0; // to and fro, as a hand does
        frame.PanBy({12.0 * dSense, 5.0 * dSense});
        row.Paint(frame);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Pan)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

void Zoom(benchmark::State& state) {
    CShownRow row;
    const CViewFrame frame = row.FrameOf(static_cast<double>(state.range(0)));
    int nFrame = 0;
    while (state.KeepRunning()) {
        CViewFrame zoomed = frame;
        zoomed.ZoomAt({700.0, 500.0}, 1.0 + 0.01 * (++nFrame % 10));
        row.Paint(zoomed);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Zoom)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

void DragGrip(benchmark::State& state) {
    CShownRow row;
    const CViewFrame frame = row.FrameOf(2.0);
    CGrips grips;
    grips.Take({row.Chart()});
    grips.BeginDrag(grips.All().front());
    const CSceneItem& item = *row.Scene().Find(row.Chart());
    row.Paint(frame);
    int nFrame = 0;
    while (state.KeepRunning()) {
        ++nFrame;
        const QPointF to = grips.From() + QPointF(0.25 * (nFrame % 100), 0.1 * (nFrame % 70));
        const std::optional<CDisplayList> picture = grips.PictureAt(row.Drawing(), to);
        if (!picture) return state.SkipWithError("the chart refuses");
        const CLoosePicture shown = row.Scene().LayOut(row.Drawing(), item, *picture);
        row.Paint(frame, &shown);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(DragGrip)->Unit(benchmark::kMillisecond);

} // namespace

int main(int nArguments, char** arguments) {
    StartHeadlessQt();
    return RunChartBenchmarks(nArguments, arguments);
}
