#pragma once
// A curve of Bézier pieces under one parameter: piece i holds the parameters i to i + 1.

#include "platform/acad/bezier.h"

#include <vector>

/// A box about a part of a curve.
struct CFlatBox {
    double m_dMinX, m_dMinY, m_dMaxX, m_dMaxY;

    bool IsApartFrom(const CFlatBox& other, double gap) const {
        return m_dMinX > other.m_dMaxX + gap || other.m_dMinX > m_dMaxX + gap ||
               m_dMinY > other.m_dMaxY + gap || other.m_dMinY > m_dMaxY + gap;
    }
    double Size() const { return std::hypot(m_dMaxX - m_dMinX, m_dMaxY - m_dMinY); }
};

/// The box of a piece's Bézier points, in which the piece lies.
CFlatBox BoxOf(const CBezier& piece);

class CBezierChain {
public:
    /// At least one piece, finite numbers only.
    explicit CBezierChain(std::vector<CBezier> pieces);

    const std::vector<CBezier>& Pieces() const { return m_arPieces; }
    double End() const { return static_cast<double>(m_arPieces.size()); } ///< the last parameter
    const CFlatBox& Box() const { return m_arBoxes[1]; }
    AcGePoint2d At(double u) const;
    AcGeVector2d Derivative(double u) const; ///< by u
    /// The parameter of the curve's point nearest to the given one, sought downhill from u.
    double Project(double u, const AcGePoint2d& point) const;

    // A tree of boxes over the pieces: node 1 is the root, node n has the children 2n and 2n + 1.
    std::size_t Leaves() const { return m_nLeaves; } ///< nodes from here on are single pieces
    const CFlatBox& NodeBox(std::size_t node) const { return m_arBoxes[node]; }
    bool IsLeaf(std::size_t node) const { return node >= m_nLeaves; }
    bool Exists(std::size_t node) const { return m_arBoxes[node].m_dMinX <= m_arBoxes[node].m_dMaxX; }
    std::size_t PieceOf(std::size_t leaf) const { return leaf - m_nLeaves; }

private:
    std::size_t PieceAt(double u) const;

    std::vector<CBezier> m_arPieces;
    std::size_t m_nLeaves = 1;
    std::vector<CFlatBox> m_arBoxes;
};
