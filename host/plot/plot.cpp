#include "host/plot/plot.h"

#include "host/plot/paintable.h"
#include "host/plot/painter_canvas.h"
#include "host/plot/pdf_page_box.h"
#include "host/plot/svg_canvas.h"
#include "platform/windows/code_page.h"
#include "platform/windows/file_bytes.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <exception>

namespace {

constexpr double g_dMmPerInch = 25.4;

/// Carries a sentence (GBK) from the place that fails to Plot, which gives it to the caller.
class CPlotError : public std::exception {
public:
    explicit CPlotError(std::string strText)
        : m_strText(std::move(strText)) {}
    const char* what() const noexcept override { return m_strText.c_str(); }

private:
    std::string m_strText;
};

QString NameOf(const std::filesystem::path& path) {
    return QString::fromStdString(path.string()); // file names are UTF-8
}

std::string Gbk(const QString& strText) {
    return GbkFromWide(strText.toStdWString());
}

bool HasEnding(const std::filesystem::path& path, QStringView strEnding) {
    return NameOf(path.extension()).compare(strEnding, Qt::CaseInsensitive) == 0;
}

void CheckGoesOn(const CPlotOptions& options, std::size_t nDone) {
    if (options.m_fnGoesOn && !options.m_fnGoesOn(nDone)) throw CPlotError("the plot is given up");
}

QSizeF SizeOf(const CPlotPage& page) {
    const QSizeF size(page.m_box.Width(), page.m_box.Height());
    if (!(size.width() > 0.0) || !(size.height() > 0.0) || !IsPaintable(size.width(), size.height()))
        throw CPlotError("the page has no size that can be plotted");
    return size;
}

void Save(const std::filesystem::path& path, const QByteArray& bytes) {
    if (!WriteFileWhole(path.string(), {bytes.constData(), static_cast<std::size_t>(bytes.size())}))
        throw CPlotError("can't write " + Gbk(NameOf(path)) + ": " + std::strerror(errno));
}

QByteArray MakePdf(const std::vector<CPlotPage>& arPages, const CPlotOptions& options, CFonts& fonts) {
    constexpr int nResolution = 7200;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setCreator(u"Tervo"_qs);
    writer.setResolution(nResolution);
    std::vector<QSizeF> arSizes;
    QPainter painter;
    for (const CPlotPage& page : arPages) {
        CheckGoesOn(options, arSizes.size());
        const QSizeF size = SizeOf(page);
        const QSize whole = WholePointsOf(size);
        const QPageSize paper(QSizeF(whole), QPageSize::Point, QString(), QPageSize::ExactMatch);
        writer.setPageLayout(QPageLayout(paper, QPageLayout::Portrait, QMarginsF()));
        if (arSizes.empty() ? !painter.begin(&writer) : !writer.newPage())
            throw CPlotError("can't make a page");
        // The page ends at its exact height, a fraction of a point above the bottom of the whole points.
        painter.resetTransform();
        painter.scale(nResolution / g_dMmPerInch, nResolution / g_dMmPerInch);
        painter.translate(0.0, whole.height() * g_dMmPerInch / 72.0 - size.height());
        CPainterCanvas canvas(painter);
        PaintPage(page, options, fonts, canvas);
        arSizes.push_back(size);
    }
    painter.end();
    if (!ExactPageBoxes(&bytes, arSizes)) throw CPlotError("can't set the page size");
    return bytes;
}

QByteArray MakeSvg(const CPlotPage& page, const CPlotOptions& options, CFonts& fonts) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    CSvgCanvas canvas(buffer, SizeOf(page));
    PaintPage(page, options, fonts, canvas);
    if (!canvas.Finish()) throw CPlotError("a text can't be written");
    return bytes;
}

QByteArray MakePng(const CPlotPage& page, const CPlotOptions& options, CFonts& fonts) {
    const double dDotsPerMm = options.m_dDotsPerInch / g_dMmPerInch;
    const QSizeF dots = SizeOf(page) * dDotsPerMm;
    constexpr double dMostDots = 32767.0; // the raster's own limit
    if (!(dots.width() >= 0.5) || !(dots.height() >= 0.5) || dots.width() > dMostDots ||
        dots.height() > dMostDots)
        throw CPlotError("the page is too large or too small for a picture at this resolution");
    QImage image(static_cast<int>(std::lround(dots.width())), static_cast<int>(std::lround(dots.height())),
                 QImage::Format_RGB32);
    if (image.isNull()) throw CPlotError("not enough memory for the picture");
    image.fill(Qt::white);
    image.setDotsPerMeterX(static_cast<int>(std::lround(dDotsPerMm * 1000.0)));
    image.setDotsPerMeterY(static_cast<int>(std::lround(dDotsPerMm * 1000.0)));
    QPainter painter(&image);
    painter.scale(dDotsPerMm, dDotsPerMm);
    CPainterCanvas canvas(painter);
    PaintPage(page, options, fonts, canvas);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) throw CPlotError("the picture can't be written");
    return bytes;
}

} // namespace

void PaintPage(const CPlotPage& page, const CPlotOptions& options, CFonts& fonts, CCanvas& canvas) {
    for (const CPlotPicture& picture : page.m_arPictures) {
        const CPaintContext context{page.m_box.m_dLeft, page.m_box.m_dTop, options.m_fnLinetype,
                                    options.m_dLinetypeScale, picture.m_nLayerColor};
        PaintDisplayList(*picture.m_pList, context, fonts, canvas);
    }
}

bool IsPlotFile(const std::filesystem::path& path) {
    return HasEnding(path, u".pdf") || HasEnding(path, u".svg") || HasEnding(path, u".png");
}

std::filesystem::path PlotFileOf(const std::filesystem::path& path, std::size_t nPage, std::size_t nPages) {
    if (nPages == 1 || HasEnding(path, u".pdf")) return path;
    std::filesystem::path numbered = path;
    return numbered.replace_filename(path.stem().string() + "-" + std::to_string(nPage + 1) +
                                     path.extension().string());
}

bool Plot(const std::vector<CPlotPage>& arPages, const CPlotOptions& options, CFonts& fonts,
          const std::filesystem::path& path, std::string* pError) {
    try {
        if (!IsPlotFile(path))
            throw CPlotError(Gbk(NameOf(path)) + ": a plot's name ends in .pdf, .svg or .png");
        if (arPages.empty()) throw CPlotError("there is no page to plot");
        const bool bPdf = HasEnding(path, u".pdf"), bSvg = HasEnding(path, u".svg");
        if (bPdf) Save(path, MakePdf(arPages, options, fonts));
        for (std::size_t i = 0; !bPdf && i < arPages.size(); ++i) {
            CheckGoesOn(options, i);
            Save(PlotFileOf(path, i, arPages.size()),
                 bSvg ? MakeSvg(arPages[i], options, fonts) : MakePng(arPages[i], options, fonts));
        }
        return true;
    } catch (const std::exception& error) {
        *pError = error.what();
        return false;
    }
}
