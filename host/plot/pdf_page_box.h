#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSizeF>

#include <vector>

/// Points of 1/72 inch, for a page of millimetres.
QSizeF PointsOf(const QSizeF& sizeMm);

/// The whole points that a page of this size is begun with; ExactPageBoxes then trims it.
QSize WholePointsOf(const QSizeF& sizeMm);

/// Qt knows page sizes in whole points only, a third of a millimetre. Writes the exact sizes, page by page,
/// over the boxes of a PDF that was made with pages of WholePointsOf; no byte moves. False when it finds
/// other boxes than these, and then the bytes stay.
bool ExactPageBoxes(QByteArray* pPdf, const std::vector<QSizeF>& arSizesMm);
