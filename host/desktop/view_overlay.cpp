#include "host/desktop/view_overlay.h"

#include "host/desktop/shape_painter.h"

#include <QtGui/QPainter>

namespace {

CShapeLook LookIn(const COverlay& overlay, const QColor& color) {
    return {overlay.m_frame, overlay.m_colors, 1.5 * overlay.m_dUnit, color};
}

void PaintHovered(const COverlay& overlay, const CSceneItem& item) {
    PaintShapes(overlay.m_painter, item.m_arShapes, item.m_ptOrigin,
                QRectF(QPointF(), QSizeF(overlay.m_frame.m_size)), LookIn(overlay, overlay.m_colors.m_hover));
}

void PaintDragged(const COverlay& overlay, const CLoosePicture& picture) {
    PaintShapes(overlay.m_painter, picture.m_arShapes, picture.m_ptOrigin,
                QRectF(QPointF(), QSizeF(overlay.m_frame.m_size)),
                LookIn(overlay, overlay.m_colors.m_dragged));
}

void PaintGrips(const COverlay& overlay, const CGrips& grips, double dAperture) {
    overlay.m_painter.setRenderHint(QPainter::Antialiasing, false);
    overlay.m_painter.setPen(QPen(overlay.m_colors.m_background, overlay.m_dUnit));
    for (const CGrip& grip : grips.All()) {
        const QPointF at = overlay.m_frame.ToScreen(grip.m_pt);
        overlay.m_painter.setBrush(grips.IsHot(grip) ? overlay.m_colors.m_hotGrip : overlay.m_colors.m_grip);
        overlay.m_painter.drawRect(
            QRectF(at.x() - dAperture, at.y() - dAperture, 2.0 * dAperture, 2.0 * dAperture));
    }
    overlay.m_painter.setRenderHint(QPainter::Antialiasing, true);
}

void PaintSelectionBox(const COverlay& overlay, const CPageBox& box, bool bCrossing) {
    const QColor color = bCrossing ? overlay.m_colors.m_crossing : overlay.m_colors.m_window;
    QColor inside = color;
    inside.setAlphaF(0.2F);
    overlay.m_painter.setPen(QPen(color, overlay.m_dUnit, bCrossing ? Qt::DashLine : Qt::SolidLine));
    overlay.m_painter.setBrush(inside);
    overlay.m_painter.drawRect(overlay.m_frame.ToScreen(box));
}

void PaintBand(const COverlay& overlay, const QLineF& band) {
    overlay.m_painter.setPen(QPen(overlay.m_colors.m_dragged, overlay.m_dUnit, Qt::DashLine));
    overlay.m_painter.drawLine(overlay.m_frame.ToScreen(band.p1()), overlay.m_frame.ToScreen(band.p2()));
}

} // namespace

void PaintOverlay(const COverlay& overlay, const CDocumentView& view, const CViewMouse& mouse) {
    overlay.m_painter.setRenderHint(QPainter::Antialiasing);
    if (const CSceneItem* const pItem = view.Scene().Find(mouse.Hovered())) PaintHovered(overlay, *pItem);
    if (const CLoosePicture* const pDragged = mouse.Dragged()) PaintDragged(overlay, *pDragged);
    PaintGrips(overlay, view.Grips(), mouse.Aperture());
    if (const std::optional<CPageBox> box = mouse.SelectionBox())
        PaintSelectionBox(overlay, *box, mouse.IsCrossing());
    if (const std::optional<QLineF> band = mouse.Band()) PaintBand(overlay, *band);
}
