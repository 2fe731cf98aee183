#include "host/desktop/dialogs/dialog_icon.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>

namespace {

constexpr int g_nSize = CIconTemplate::SIZE;

QRgb ColorOf(const CIconTemplate& icon, char cLetter) {
    for (const CIconColor& color : icon.m_arColors)
        if (color.m_cLetter == cLetter) return color.m_nArgb;
    return 0;
}

QImage Picture(const CIconTemplate& icon) {
    QImage picture(g_nSize, g_nSize, QImage::Format_ARGB32);
    for (int nRow = 0; nRow < g_nSize; ++nRow)
        for (int nColumn = 0; nColumn < g_nSize; ++nColumn)
            picture.setPixel(nColumn, nRow, ColorOf(icon, icon.m_strPixels[nRow * g_nSize + nColumn]));
    return picture;
}

} // namespace

QIcon DialogIcon(const CIconTemplate& icon) {
    const QImage picture = Picture(icon);
    QIcon both(QPixmap::fromImage(picture));
    both.addPixmap(QPixmap::fromImage(
        picture.scaled(g_nSize / 2, g_nSize / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    return both;
}
