#pragma once

#include "host/desktop/screen_shapes.h"
#include "host/desktop/view_colors.h"
#include "host/desktop/view_frame.h"

#include <optional>

class QPainter;

/// How shapes come onto the screen.
struct CShapeLook {
    const CViewFrame& m_frame;
    const CViewColors& m_colors;
    double m_dLineWidth = 1.0;          ///< of thin lines, in device pixels
    std::optional<QColor> m_color = {}; ///< all in this colour instead of their own
};

/// Paints shapes whose origin lies at a point of the drawing, as far as they meet a rectangle of the screen.
/// The painter works in device pixels. Thin lines stay thin at any scale; texts too small to be read are
/// bars.
void PaintShapes(QPainter& painter, const std::vector<CScreenShape>& arShapes, const QPointF& ptOrigin,
                 const QRectF& rect, const CShapeLook& look);
