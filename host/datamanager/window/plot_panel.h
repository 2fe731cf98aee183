#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include "host/datamanager/window/axis_ticks.h"

/// A frame with two axes, and where a pair of values lies in it.
class CPlotPanel {
public:
    CPlotPanel(QRectF frame, CAxisTicks ticksX, CAxisTicks ticksY)
        : m_frame(frame)
        , m_ticksX(ticksX)
        , m_ticksY(ticksY) {}

    [[nodiscard]] const QRectF& Frame() const { return m_frame; }
    [[nodiscard]] QPointF Place(double dX, double dY) const;
    /// Paints the grid, the frame and the labels of the ticks outside it; those of the horizontal axis where
    /// bLabelX is set.
    void PaintAxes(QPainter& painter, const QPalette& palette, bool bLabelX) const;
    /// Paints the vertical axis's title, read from below, left of dLeft.
    void PaintTitleY(QPainter& painter, const QString& strTitle, double dLeft) const;

private:
    void PaintTicksX(QPainter& painter, bool bLabel) const;
    void PaintTicksY(QPainter& painter) const;

    QRectF m_frame;
    CAxisTicks m_ticksX, m_ticksY;
};
