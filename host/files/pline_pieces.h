#pragma once
// A polyline with widths and bulges, taken apart for pictures that know neither.

#include "platform/acad/bulge_arc.h"
#include "platform/acad/display_list.h"

/// What lies between two vertices of a polyline.
struct CPlinePiece {
    AcGePoint2d m_ptFrom, m_ptTo;
    std::optional<CBulgeArc> m_arc;                ///< none for a straight piece
    double m_dStartWidth = 0.0, m_dEndWidth = 0.0; ///< 0 for none

    bool IsWide() const { return m_dStartWidth > 0.0 || m_dEndWidth > 0.0; }
};

/// The pieces that show something, in their order: those with a number that is not finite are left out, and
/// those without length.
std::vector<CPlinePiece> PiecesOf(const CPlinePrimitive& pline);

/// The outline of a wide line: one edge forward, then the other one backward, with as many points. That of a
/// closed line ends where it begins.
using CBandOutline = std::vector<AcGePoint2d>;

/// The outlines of the wide pieces. Pieces that meet at equal widths are one band with a mitred corner, but
/// for a corner so sharp that the mitre would run far out.
std::vector<CBandOutline> WideBandsOf(const std::vector<CPlinePiece>& arPieces);

/// The wide line that has this outline, arcs as chords; nothing for an outline that no such line has.
std::optional<CPlinePrimitive> WideLineOf(const CBandOutline& outline);
