#include "host/plot/pdf_page_box.h"

#include <QtCore/QByteArrayList>

#include <cmath>

namespace {

constexpr double g_dPointsPerMm = 72.0 / 25.4;
const QByteArray BOX_START = "/MediaBox [0 0 ";

} // namespace

QSizeF PointsOf(const QSizeF& sizeMm) {
    return sizeMm * g_dPointsPerMm;
}

QSize WholePointsOf(const QSizeF& sizeMm) {
    constexpr double dRounding = 1e-6;
    const QSizeF points = PointsOf(sizeMm);
    return {static_cast<int>(std::ceil(points.width() - dRounding)),
            static_cast<int>(std::ceil(points.height() - dRounding))};
}

bool ExactPageBoxes(QByteArray* pPdf, const std::vector<QSizeF>& arSizesMm) {
    QByteArray pdf = *pPdf;
    qsizetype nAt = 0;
    for (const QSizeF& sizeMm : arSizesMm) {
        nAt = pdf.indexOf(BOX_START, nAt);
        if (nAt < 0) return false;
        nAt += BOX_START.size();
        const qsizetype nLength = pdf.indexOf(']', nAt) - nAt;
        const QList<QByteArray> arOld = pdf.mid(nAt, nLength).split(' ');
        const QSize whole = WholePointsOf(sizeMm);
        if (arOld.size() != 2 || arOld[0].toDouble() != whole.width() ||
            arOld[1].toDouble() != whole.height())
            return false;
        const QSizeF exact = PointsOf(sizeMm);
        QByteArray box =
            QByteArray::number(exact.width(), 'f', 4) + ' ' + QByteArray::number(exact.height(), 'f', 4);
        if (box.size() > nLength) return false;
        pdf.replace(nAt, nLength, box.leftJustified(nLength, ' '));
    }
    *pPdf = pdf;
    return true;
}
