#include "host/datamanager/window/plot_panel.h"

#include <QtGui/QFontMetricsF>

namespace {
constexpr double g_dGap = 5.0; // between the frame and a label
}

QPointF CPlotPanel::Place(double dX, double dY) const {
    const auto share = [](const CAxisTicks& ticks, double dValue) {
        return (dValue - ticks.m_dFirst) / (ticks.Last() - ticks.m_dFirst);
    };
    return {m_frame.left() + share(m_ticksX, dX) * m_frame.width(),
            m_frame.bottom() - share(m_ticksY, dY) * m_frame.height()};
}

void CPlotPanel::PaintAxes(QPainter& painter, const QPalette& palette, bool bLabelX) const {
    QColor grid = palette.color(QPalette::Text);
    grid.setAlphaF(0.15F);
    painter.setPen(QPen(grid, 1.0));
    for (int i = 1; i + 1 < m_ticksX.m_nCount; ++i) {
        const double dX = Place(m_ticksX.Value(i), 0.0).x();
        painter.drawLine(QPointF(dX, m_frame.top()), QPointF(dX, m_frame.bottom()));
    }
    for (int i = 1; i + 1 < m_ticksY.m_nCount; ++i) {
        const double dY = Place(0.0, m_ticksY.Value(i)).y();
        painter.drawLine(QPointF(m_frame.left(), dY), QPointF(m_frame.right(), dY));
    }
    painter.setPen(QPen(palette.color(QPalette::Text), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(m_frame);
    PaintTicksX(painter, bLabelX);
    PaintTicksY(painter);
}

void CPlotPanel::PaintTicksX(QPainter& painter, bool bLabel) const {
    if (!bLabel) return;
    const QFontMetricsF metrics(painter.font());
    for (int i = 0; i < m_ticksX.m_nCount; ++i) {
        const QString strLabel = m_ticksX.Label(i);
        const double dX = Place(m_ticksX.Value(i), 0.0).x() - metrics.horizontalAdvance(strLabel) / 2.0;
        painter.drawText(QPointF(dX, m_frame.bottom() + g_dGap + metrics.ascent()), strLabel);
    }
}

void CPlotPanel::PaintTicksY(QPainter& painter) const {
    const QFontMetricsF metrics(painter.font());
    for (int i = 0; i < m_ticksY.m_nCount; ++i) {
        const QString strLabel = m_ticksY.Label(i);
        const double dY = Place(0.0, m_ticksY.Value(i)).y() + metrics.capHeight() / 2.0;
        painter.drawText(QPointF(m_frame.left() - g_dGap - metrics.horizontalAdvance(strLabel), dY),
                         strLabel);
    }
}

void CPlotPanel::PaintTitleY(QPainter& painter, const QString& strTitle, double dLeft) const {
    const QFontMetricsF metrics(painter.font());
    painter.save();
    painter.translate(dLeft, m_frame.center().y() + metrics.horizontalAdvance(strTitle) / 2.0);
    painter.rotate(-90.0);
    painter.drawText(QPointF(0.0, 0.0), strTitle);
    painter.restore();
}
