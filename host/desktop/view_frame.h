#pragma once

#include "host/plot/page.h"
#include "platform/acad/db_database.h"

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSize>

/// Which part of a drawing a view shows. Drawing units have y up, device pixels y down from the upper left.
struct CViewFrame {
    QPointF m_ptCenter;        ///< drawing units
    double m_dPixels = 1.0;    ///< per drawing unit, above 0
    QSize m_size = {640, 480}; ///< device pixels, not empty

    QPointF ToScreen(const QPointF& ptDrawing) const;
    QPointF ToDrawing(const QPointF& ptScreen) const;
    /// A box of drawing units as it lies on the screen.
    QRectF ToScreen(const CPageBox& box) const;
    /// The part of the drawing behind a rectangle of the screen.
    CPageBox ToDrawing(const QRectF& rect) const;

    void PanBy(const QPointF& pixels);                    ///< the drawing moves with the hand
    void ZoomAt(const QPointF& ptScreen, double dFactor); ///< what lies there stays there
    void Fit(const CPageBox& box);                        ///< all of the box, with a narrow margin
    bool operator==(const CViewFrame&) const = default;
};

/// The frame of a window of that size onto the drawing's view, and the other way.
CViewFrame FrameOf(const CDbView& view, const QSize& size);
CDbView ViewOf(const CViewFrame& frame);
