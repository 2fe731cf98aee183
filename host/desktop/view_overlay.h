#pragma once

#include "host/desktop/view_colors.h"
#include "host/desktop/view_mouse.h"

class QPainter;

/// Where an overlay is painted: in device pixels, lines of dUnit pixels.
struct COverlay {
    QPainter& m_painter;
    CViewFrame m_frame;
    const CViewColors& m_colors;
    double m_dUnit;
};

/// Paints what lies over the drawing while the user works: the entity under the cursor, what is dragged,
/// grips, the box of a selection and the band from the point given before.
void PaintOverlay(const COverlay& overlay, const CDocumentView& view, const CViewMouse& mouse);
