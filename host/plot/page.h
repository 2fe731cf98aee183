#pragma once

#include "platform/acad/geometry.h"

/// A page in drawing units, which are millimetres of paper.
struct CPageBox {
    double m_dLeft = 0.0, m_dBottom = 0.0, m_dRight = 0.0, m_dTop = 0.0;
    double Width() const { return m_dRight - m_dLeft; }
    double Height() const { return m_dTop - m_dBottom; }
};

/// The page that is the extents.
CPageBox PageOf(const AcDbExtents& extents);

/// The smallest sheet of A4, A3, A2, A1, A0 (upright before lying) that holds the extents, these in its
/// middle; what is too large for A0 gets a page of its own size. Empty extents get an A4 sheet around the
/// origin.
CPageBox SheetFor(const AcDbExtents& extents);
