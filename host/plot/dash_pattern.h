#pragma once

#include <vector>

/// A repeating row of strokes and gaps: lengths in millimetres, strokes first, then in turn. Empty is a
/// continuous line. The line begins m_dPhase into the row.
struct CDashes {
    std::vector<double> m_arLengths;
    double m_dPhase = 0.0;
};

/// Widths of thin lines on paper, and the length of a dot in a pattern.
inline constexpr double THIN_LINE = 0.18;

/// The row of a line type (positive a stroke, negative a gap, 0 a dot) times scale. A type without a gap, one
/// too fine to be told from a line, a scale that isn't above 0 and values that are no finite number give a
/// continuous line.
CDashes MakeDashes(const std::vector<double>& arLinetype, double dScale);
