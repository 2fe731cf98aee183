#include "host/files/pline_pieces.h"

#include <algorithm>
#include <numbers>

namespace {

bool IsFinite(const CPolylineVertex& vertex) {
    return std::isfinite(vertex.m_pt.x) && std::isfinite(vertex.m_pt.y) && std::isfinite(vertex.m_dBulge) &&
           std::isfinite(vertex.m_dStartWidth) && std::isfinite(vertex.m_dEndWidth);
}

/// A place on a wide line: the direction of travel there, of length 1, and how far the edges lie off.
struct CStation {
    AcGePoint2d m_pt;
    AcGeVector2d m_vecAlong;
    double m_dLeft, m_dRight;

    AcGePoint2d Edge(double dOffset) const {
        return {m_pt.x - m_vecAlong.y * dOffset, m_pt.y + m_vecAlong.x * dOffset};
    }
};

using CStations = std::vector<CStation>;

CStations StraightStations(const CPlinePiece& piece) {
    const double dLength = piece.m_ptFrom.distanceTo(piece.m_ptTo);
    const AcGeVector2d along((piece.m_ptTo.x - piece.m_ptFrom.x) / dLength,
                             (piece.m_ptTo.y - piece.m_ptFrom.y) / dLength);
    const double dStart = piece.m_dStartWidth / 2.0, dEnd = piece.m_dEndWidth / 2.0;
    return {{piece.m_ptFrom, along, dStart, dStart}, {piece.m_ptTo, along, dEnd, dEnd}};
}

/// How many chords stand for an arc: near enough for paper, and few degrees each.
int ChordsOf(const CBulgeArc& arc, double dOuter) {
    constexpr double dTolerance = 0.005, dMost = std::numbers::pi / 30.0;
    const double dStep = std::min(dMost, 2.0 * std::acos(std::max(0.0, 1.0 - dTolerance / dOuter)));
    return static_cast<int>(std::clamp(std::ceil(std::fabs(arc.m_dSweep) / dStep), 1.0, 1000.0));
}

CStations ArcStations(const CPlinePiece& piece, const CBulgeArc& arc) {
    const double dTurn = arc.m_dSweep < 0.0 ? -1.0 : 1.0;
    const int nChords = ChordsOf(arc, arc.m_dRadius + std::max(piece.m_dStartWidth, piece.m_dEndWidth) / 2.0);
    CStations stations;
    for (int i = 0; i <= nChords; ++i) {
        const double dPlace = static_cast<double>(i) / nChords, dAngle = arc.m_dStart + arc.m_dSweep * dPlace;
        const double dHalf = (piece.m_dStartWidth + (piece.m_dEndWidth - piece.m_dStartWidth) * dPlace) / 2.0;
        const double dInner = std::min(dHalf, arc.m_dRadius); // it ends at the center
        const double dCos = std::cos(dAngle), dSin = std::sin(dAngle);
        stations.push_back(
            {{arc.m_ptCenter.x + arc.m_dRadius * dCos, arc.m_ptCenter.y + arc.m_dRadius * dSin},
             {-dSin * dTurn, dCos * dTurn},
             dTurn > 0.0 ? dInner : dHalf,
             dTurn > 0.0 ? dHalf : dInner});
    }
    stations.front().m_pt = piece.m_ptFrom; // exactly, so that pieces meet
    stations.back().m_pt = piece.m_ptTo;
    return stations;
}

/// The mitre where one piece ends and another begins; nothing where they don't make one band.
std::optional<CStation> Joint(const CStation& in, const CStation& out) {
    constexpr double dSharpest = 0.05, dEqual = 1e-12;
    if (in.m_pt.x != out.m_pt.x || in.m_pt.y != out.m_pt.y) return {};
    if (std::fabs(in.m_dLeft - out.m_dLeft) > dEqual || std::fabs(in.m_dRight - out.m_dRight) > dEqual)
        return {};
    const AcGeVector2d sum(in.m_vecAlong.x + out.m_vecAlong.x, in.m_vecAlong.y + out.m_vecAlong.y);
    const double dLength = sum.length(), dOnePlusCos = dLength * dLength / 2.0;
    if (dOnePlusCos <= dSharpest) return {};
    const double dLonger = 2.0 / dLength; // than a rung that stands square
    return CStation{in.m_pt, {sum.x / dLength, sum.y / dLength}, in.m_dLeft * dLonger, in.m_dRight * dLonger};
}

CBandOutline OutlineOf(const CStations& stations) {
    CBandOutline outline;
    for (const CStation& station : stations)
        outline.push_back(station.Edge(station.m_dLeft));
    for (auto station = stations.rbegin(); station != stations.rend(); ++station)
        outline.push_back(station->Edge(-station->m_dRight));
    return outline;
}

/// Adds a piece to the band, or begins another one with it.
void Append(std::vector<CStations>& arBands, CStations stations) {
    const auto joint = arBands.empty() ? std::nullopt : Joint(arBands.back().back(), stations.front());
    if (!joint) return arBands.push_back(std::move(stations));
    arBands.back().back() = *joint;
    arBands.back().insert(arBands.back().end(), stations.begin() + 1, stations.end());
}

/// Where the last band runs into the first one, they are one.
void Close(std::vector<CStations>& arBands) {
    const auto joint = arBands.empty() ? std::nullopt : Joint(arBands.back().back(), arBands.front().front());
    if (!joint || arBands.back().size() < 2) return;
    arBands.back().back() = arBands.front().front() = *joint;
    if (arBands.size() == 1) return;
    arBands.back().insert(arBands.back().end(), arBands.front().begin() + 1, arBands.front().end());
    arBands.erase(arBands.begin());
}

/// A wide line that is told by rungs from edge to edge.
class CLadder {
public:
    explicit CLadder(const CBandOutline& outline) {
        for (std::size_t i = 0; i < outline.size() / 2; ++i) {
            const AcGePoint2d &left = outline[i], &right = outline[outline.size() - 1 - i];
            m_arMiddles.emplace_back((left.x + right.x) / 2.0, (left.y + right.y) / 2.0);
            m_arRungs.emplace_back(left.x - right.x, left.y - right.y);
        }
        m_bClosed = m_arMiddles.size() > 2 && SamePlace(0, m_arMiddles.size() - 1);
    }

    std::optional<CPlinePrimitive> Line() const {
        const std::size_t nPieces = m_arMiddles.size() - 1;
        CPlinePrimitive line;
        line.m_bClosed = m_bClosed;
        for (std::size_t i = 0; i < nPieces; ++i) {
            const double dLength = m_arMiddles[i].distanceTo(m_arMiddles[i + 1]);
            const std::optional<double> start = Width(i, i), end = Width(i + 1, i);
            if (!(dLength > 0.0) || !start || !end) return {};
            line.m_arVertices.push_back({m_arMiddles[i], 0.0, *start, *end});
        }
        for (std::size_t i = m_bClosed ? 0 : 1; i < nPieces; ++i)
            if (!IsMitre(i, (i + nPieces - 1) % nPieces, i)) return {};
        if (m_bClosed) return line;
        if (!IsSquare(0, 0) || !IsSquare(nPieces, nPieces - 1)) return {};
        line.m_arVertices.push_back({m_arMiddles.back()});
        return line;
    }

private:
    bool SamePlace(std::size_t i, std::size_t j) const {
        return m_arMiddles[i].distanceTo(m_arMiddles[j]) == 0.0 &&
               std::hypot(m_arRungs[i].x - m_arRungs[j].x, m_arRungs[i].y - m_arRungs[j].y) == 0.0;
    }
    AcGeVector2d Along(std::size_t nPiece) const {
        const AcGePoint2d &from = m_arMiddles[nPiece], &to = m_arMiddles[nPiece + 1];
        const double dLength = from.distanceTo(to);
        return {(to.x - from.x) / dLength, (to.y - from.y) / dLength};
    }
    /// The width that a piece has at a rung; nothing when its edges change sides there.
    std::optional<double> Width(std::size_t nRung, std::size_t nPiece) const {
        const AcGeVector2d along = Along(nPiece), &rung = m_arRungs[nRung];
        const double dWidth = along.x * rung.y - along.y * rung.x;
        const double dLeast = -1e-9 * rung.length();
        return dWidth >= dLeast ? std::optional(std::max(dWidth, 0.0)) : std::nullopt;
    }
    bool IsSquare(std::size_t nRung, std::size_t nPiece) const {
        constexpr double dSlant = 0.1; // an arc's chord does not stand quite square
        const AcGeVector2d along = Along(nPiece), &rung = m_arRungs[nRung];
        return std::fabs(along.x * rung.x + along.y * rung.y) <= dSlant * rung.length();
    }
    bool IsMitre(std::size_t nRung, std::size_t nBefore, std::size_t nAfter) const {
        constexpr double dUneven = 0.02;
        const auto before = Width(nRung == 0 ? nBefore + 1 : nRung, nBefore), after = Width(nRung, nAfter);
        return before && after && std::fabs(*before - *after) <= dUneven * std::max(*before, *after);
    }

    std::vector<AcGePoint2d> m_arMiddles;
    std::vector<AcGeVector2d> m_arRungs; ///< from the right edge to the left one
    bool m_bClosed = false;
};

CBandOutline Turned(CBandOutline outline) {
    std::reverse(outline.begin(), outline.end());
    return outline;
}

} // namespace

std::vector<CPlinePiece> PiecesOf(const CPlinePrimitive& pline) {
    std::vector<CPlinePiece> pieces;
    const std::vector<CPolylineVertex>& arVertices = pline.m_arVertices;
    const std::size_t count = arVertices.size();
    for (std::size_t i = 0; i < count && (pline.m_bClosed || i + 1 < count); ++i) {
        const CPolylineVertex &from = arVertices[i], &to = arVertices[(i + 1) % count];
        if (!IsFinite(from) || !std::isfinite(to.m_pt.x) || !std::isfinite(to.m_pt.y)) continue;
        if (from.m_pt.distanceTo(to.m_pt) == 0.0) continue;
        pieces.push_back({from.m_pt, to.m_pt, ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge),
                          std::max(from.m_dStartWidth, 0.0), std::max(from.m_dEndWidth, 0.0)});
    }
    return pieces;
}

std::vector<CBandOutline> WideBandsOf(const std::vector<CPlinePiece>& arPieces) {
    std::vector<CStations> arBands;
    for (const CPlinePiece& piece : arPieces)
        if (piece.IsWide())
            Append(arBands, piece.m_arc ? ArcStations(piece, *piece.m_arc) : StraightStations(piece));
    Close(arBands);
    std::vector<CBandOutline> outlines;
    outlines.reserve(arBands.size());
    for (const CStations& stations : arBands)
        outlines.push_back(OutlineOf(stations));
    return outlines;
}

std::optional<CPlinePrimitive> WideLineOf(const CBandOutline& outline) {
    if (outline.size() < 4 || outline.size() % 2 != 0) return {};
    const auto line = CLadder(outline).Line();
    return line ? line : CLadder(Turned(outline)).Line();
}
