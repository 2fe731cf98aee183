#include "host/desktop/view_frame.h"

#include <algorithm>

namespace {

// Beyond these a drawing shows nothing that doubles can still place.
constexpr double g_dFewestPixels = 1e-6, g_dMostPixels = 1e6;

double Limited(double dPixels) {
    return std::clamp(dPixels, g_dFewestPixels, g_dMostPixels);
}

} // namespace

QPointF CViewFrame::ToScreen(const QPointF& ptDrawing) const {
    return {(ptDrawing.x() - m_ptCenter.x()) * m_dPixels + m_size.width() / 2.0,
            (m_ptCenter.y() - ptDrawing.y()) * m_dPixels + m_size.height() / 2.0};
}

QPointF CViewFrame::ToDrawing(const QPointF& ptScreen) const {
    return {m_ptCenter.x() + (ptScreen.x() - m_size.width() / 2.0) / m_dPixels,
            m_ptCenter.y() - (ptScreen.y() - m_size.height() / 2.0) / m_dPixels};
}

QRectF CViewFrame::ToScreen(const CPageBox& box) const {
    return {ToScreen(QPointF(box.m_dLeft, box.m_dTop)), ToScreen(QPointF(box.m_dRight, box.m_dBottom))};
}

CPageBox CViewFrame::ToDrawing(const QRectF& rect) const {
    const QPointF upperLeft = ToDrawing(rect.topLeft()), lowerRight = ToDrawing(rect.bottomRight());
    return {upperLeft.x(), lowerRight.y(), lowerRight.x(), upperLeft.y()};
}

void CViewFrame::PanBy(const QPointF& pixels) {
    m_ptCenter += QPointF(-pixels.x(), pixels.y()) / m_dPixels;
}

void CViewFrame::ZoomAt(const QPointF& ptScreen, double dFactor) {
    const QPointF fixed = ToDrawing(ptScreen);
    const double dBefore = m_dPixels;
    m_dPixels = Limited(m_dPixels * dFactor);
    m_ptCenter = fixed + (m_ptCenter - fixed) * (dBefore / m_dPixels);
}

void CViewFrame::Fit(const CPageBox& box) {
    constexpr double dFilled = 0.96;
    m_ptCenter = {(box.m_dLeft + box.m_dRight) / 2.0, (box.m_dBottom + box.m_dTop) / 2.0};
    if (box.Width() <= 0.0 && box.Height() <= 0.0) return; // a lone point: the scale stays
    const double dAcross = box.Width() > 0.0 ? m_size.width() / box.Width() : g_dMostPixels;
    const double dUpright = box.Height() > 0.0 ? m_size.height() / box.Height() : g_dMostPixels;
    m_dPixels = Limited(dFilled * std::min(dAcross, dUpright));
}

CViewFrame FrameOf(const CDbView& view, const QSize& size) {
    const double dPixels = view.m_dHeight > 0.0 ? size.height() / view.m_dHeight : 1.0;
    return {{view.m_ptCenter.x, view.m_ptCenter.y}, Limited(dPixels), size};
}

CDbView ViewOf(const CViewFrame& frame) {
    return {{frame.m_ptCenter.x(), frame.m_ptCenter.y()}, frame.m_size.height() / frame.m_dPixels};
}
