#pragma once
// Tells whether two pictures of a page show the same, though their edges may be smoothed differently.

#include <QtGui/QImage>

/// The place where two pictures of a page differ most.
struct CPictureDifference {
    double m_dInk = 0.0;           ///< 0 the same, 1 full ink against none all around the place
    double m_dX = 0.0, m_dY = 0.0; ///< mm from the upper left corner
};

/// Above it something is missing, moved or of another colour. At 100 dots per inch a thin line that is
/// missing, or moved by a millimetre, comes to about 0.17, and the least figure of a sheet, a subscript 1 mm
/// high, to 0.06. A whole sheet moved by 0.05 mm, or with edges smoothed a fifth stronger or weaker, stays
/// below.
inline constexpr double g_dSameInk = 0.055;

/// Compares the ink of each primary colour, spread over a millimetre around every dot. Pictures of another
/// size or resolution differ by 1.
CPictureDifference ComparePictures(const QImage& one, const QImage& other);
