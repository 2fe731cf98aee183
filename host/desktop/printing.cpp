#include "host/desktop/printing.h"

#include "host/console/plot_drawing.h"
#include "host/console/progress.h"
#include "host/console/sheet_pages.h"
#include "host/plot/painter_canvas.h"

#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrinter>

#include <algorithm>

namespace {

constexpr double g_dMmPerInch = 25.4;

/// The printer's paper for a page: a standard one where the page is that.
void SetPaper(QPrinter& printer, const CPageBox& box) {
    const QSizeF size(box.Width(), box.Height());
    const bool bLying = size.width() > size.height();
    const QSizeF upright = bLying ? size.transposed() : size;
    printer.setPageSize(QPageSize(upright, QPageSize::Millimeter, QString(), QPageSize::FuzzyMatch));
    printer.setPageOrientation(bLying ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true);
}

/// A box with room for each page.
CPageBox RoomForEach(const std::vector<CPlotPage>& arPages) {
    double dWidth = 0.0, dHeight = 0.0;
    for (const CPlotPage& page : arPages) {
        dWidth = std::max(dWidth, page.m_box.Width());
        dHeight = std::max(dHeight, page.m_box.Height());
    }
    return {0.0, 0.0, dWidth, dHeight};
}

bool IsSameSize(const CPageBox& one, const CPageBox& other) {
    return one.Width() == other.Width() && one.Height() == other.Height();
}

/// Ends a print without its pages, as far as they are not on paper.
void GiveUp(QPainter& painter, QPrinter& printer) {
    if (!painter.isActive()) return; // not begun
    printer.abort();
    painter.end();
    if (!printer.outputFileName().isEmpty()) QFile::remove(printer.outputFileName());
}

/// False when the printer does not take them.
bool PrintPages(const std::vector<CPlotPage>& arPages, const CPlotOptions& options, CFonts& fonts,
                QPrinter& printer) {
    QPainter painter;
    std::size_t nDone = 0;
    for (const CPlotPage& page : arPages) {
        if (options.m_fnGoesOn && !options.m_fnGoesOn(nDone)) {
            GiveUp(painter, printer);
            return true;
        }
        if (nDone == 0 || !IsSameSize(page.m_box, arPages[nDone - 1].m_box)) SetPaper(printer, page.m_box);
        ++nDone;
        if (!painter.isActive() ? !painter.begin(&printer) : !printer.newPage()) return false;
        painter.resetTransform();
        painter.scale(printer.resolution() / g_dMmPerInch, printer.resolution() / g_dMmPerInch);
        CPainterCanvas canvas(painter);
        PaintPage(page, options, fonts, canvas);
    }
    return true;
}

std::string Failure(const QPrinter& printer) {
    const QString strFile = printer.outputFileName();
    return "cannot print to " + (strFile.isEmpty() ? printer.printerName() : strFile).toStdString();
}

} // namespace

std::string PrintDrawing(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent) {
    QPrinter printer(QPrinter::HighResolution);
    if (QPrintDialog(&printer, pParent).exec() != QDialog::Accepted) return {};
    const CPlottedDrawing plotted(drawing);
    const std::vector<CPlotPage> arPages = plotted.Pages();
    CPlotOptions options = PlotOptionsOf(drawing);
    options.m_fnGoesOn = [&](std::size_t nDone) { return ShowProgress("Printing", nDone, arPages.size()); };
    const bool bPrinted = PrintPages(arPages, options, fonts, printer);
    ShowProgress("Printing", arPages.size(), arPages.size());
    return bPrinted ? std::string() : Failure(printer);
}

std::string PreviewPrint(AcDbDatabase& drawing, CFonts& fonts, QWidget* pParent) {
    const CPlottedDrawing plotted(drawing);
    const std::vector<CPlotPage> arPages = plotted.Pages();
    const CPlotOptions options = PlotOptionsOf(drawing);
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, pParent);
    bool bPrinted = true;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* pPrinter) {
        bPrinted = PrintPages(arPages, options, fonts, *pPrinter);
        SetPaper(*pPrinter, RoomForEach(arPages)); // on which the preview shows all pages alike
    });
    dialog.exec();
    return bPrinted ? std::string() : Failure(printer);
}
