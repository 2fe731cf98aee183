#include "host/desktop/view_image.h"

#include <QtGui/QPainter>
#include <QtGui/QRegion>

#include <cmath>
#include <cstring>

namespace {

constexpr double g_dMargin = 3.0; // pixels that lines and glyphs stand out of an entity's box

/// Moves the rows and columns of a picture; what comes in from outside is left as it was.
void MovePixels(QImage& image, int dx, int dy) {
    const int nRows = image.height() - std::abs(dy);
    const std::size_t nBytes = static_cast<std::size_t>(image.width() - std::abs(dx)) * sizeof(QRgb);
    const std::size_t nFrom = static_cast<std::size_t>(std::max(-dx, 0)) * sizeof(QRgb);
    const std::size_t nTo = static_cast<std::size_t>(std::max(dx, 0)) * sizeof(QRgb);
    for (int i = 0; i < nRows; ++i) { // in the order in which no row is lost
        const int row = dy > 0 ? image.height() - 1 - i : i;
        std::memmove(image.scanLine(row) + nTo, image.scanLine(row - dy) + nFrom, nBytes);
    }
}

/// A scale that went through the drawing's view and back differs in its last digits.
bool IsOtherScale(double dOne, double dOther) {
    return std::abs(dOne / dOther - 1.0) > 1e-12;
}

void PaintRect(QImage& image, const QRect& rect, const CShownItems& shown, const CShapeLook& look) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(rect);
    painter.fillRect(rect, look.m_colors.m_background);
    for (const CSceneItem& item : shown.m_scene.Items()) {
        if (item.m_extents.isEmpty()) continue;
        const QRectF box = look.m_frame.ToScreen(PageOf(item.m_extents))
                               .adjusted(-g_dMargin, -g_dMargin, g_dMargin, g_dMargin);
        if (!box.intersects(rect)) continue;
        CShapeLook own = look;
        own.m_color = shown.m_fnColor(item);
        PaintShapes(painter, item.m_arShapes, item.m_ptOrigin, rect, own);
    }
}

} // namespace

bool CViewImage::Scroll(const CViewFrame& frame, QRegion* pExposed) {
    constexpr double dWhole = 1e-3; // how far from a whole pixel a move may be
    if (!m_bValid || m_image.size() != frame.m_size || IsOtherScale(m_frame.m_dPixels, frame.m_dPixels))
        return false;
    const QPointF shift = frame.ToScreen(QPointF()) - m_frame.ToScreen(QPointF());
    const double dx = std::round(shift.x()), dy = std::round(shift.y());
    if (std::abs(shift.x() - dx) > dWhole || std::abs(shift.y() - dy) > dWhole) return false;
    if (std::abs(dx) >= m_image.width() || std::abs(dy) >= m_image.height()) return false;
    const QPoint move(static_cast<int>(dx), static_cast<int>(dy));
    if (!move.isNull()) MovePixels(m_image, move.x(), move.y());
    *pExposed = QRegion(m_image.rect()) - m_image.rect().translated(move);
    return true;
}

bool CViewImage::CPainted::LooksLike(const CPainted& other) const {
    return m_pPicture == other.m_pPicture && m_look == other.m_look && m_dLtscale == other.m_dLtscale &&
           m_color == other.m_color;
}

QRect CViewImage::BoxOf(const CPainted& painted) const {
    if (painted.m_extents.isEmpty()) return {};
    return m_frame.ToScreen(PageOf(painted.m_extents))
        .adjusted(-g_dMargin, -g_dMargin, g_dMargin, g_dMargin)
        .intersected(m_image.rect())
        .toAlignedRect();
}

QRegion CViewImage::Changes(const std::vector<CPainted>& arNow) const {
    constexpr int nMostRects = 16; // beyond it one repaint of all is quicker
    QRegion changed;
    auto before = m_arPainted.begin();
    auto now = arNow.begin();
    while (before != m_arPainted.end() || now != arNow.end()) {
        const bool bGone =
            now == arNow.end() || (before != m_arPainted.end() && before->m_handle < now->m_handle);
        const bool bNew = !bGone && (before == m_arPainted.end() || now->m_handle < before->m_handle);
        if (bGone || (!bNew && !before->LooksLike(*now))) changed += BoxOf(*before);
        if (bNew || (!bGone && !before->LooksLike(*now))) changed += BoxOf(*now);
        if (!bNew) ++before;
        if (!bGone) ++now;
    }
    return changed.rectCount() > nMostRects ? QRegion(changed.boundingRect()) : changed;
}

/// Takes over what is shown now, and gives where it looks otherwise than what was painted.
QRegion CViewImage::TakeChanges(const CShownItems& shown) {
    if (m_bValid && shown.m_nRevision == m_nRevision) return {};
    std::vector<CPainted> arNow;
    arNow.reserve(shown.m_scene.Items().size());
    for (const CSceneItem& item : shown.m_scene.Items())
        arNow.push_back({item.m_handle, item.m_pPicture, item.m_look, item.m_dLtscale, shown.m_fnColor(item),
                         item.m_extents});
    QRegion changed = Changes(arNow);
    m_arPainted = std::move(arNow);
    m_nRevision = shown.m_nRevision;
    return changed;
}

void CViewImage::Show(const CShownItems& shown, const CViewFrame& frame, const CViewColors& colors,
                      double dLineWidth) {
    QRegion exposed;
    const bool bScrolled = Scroll(frame, &exposed);
    if (!bScrolled) {
        if (m_image.size() != frame.m_size) m_image = QImage(frame.m_size, QImage::Format_RGB32);
        exposed = m_image.rect();
        m_frame = frame;
    }
    // The frame painted first stays the measure: whole steps from it, however many, land on the same pixels.
    const QPointF shift = frame.ToScreen(QPointF()) - m_frame.ToScreen(QPointF());
    CViewFrame painted = m_frame;
    painted.PanBy({std::round(shift.x()), std::round(shift.y())});
    m_frame = painted;
    exposed += TakeChanges(shown);
    const CShapeLook look{m_frame, colors, dLineWidth};
    for (const QRect& rect : exposed)
        PaintRect(m_image, rect, shown, look);
    m_bValid = true;
}
