// Crossings of two curves of Bézier pieces. Pairs of parts are halved until they lie apart, or until their
// tangents can nowhere be parallel: then they cross at most once, and Newton's method finds where. What
// cannot be told apart down to the smallest part is a contact along a tangent (or a common stretch); there
// the sides decide on which the curves come and go.

#include "platform/acad/spline_crossings.h"

#include "platform/acad/bezier_chain.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr double g_dTolerance = 1e-9;           // how near is on the curve, drawing units
constexpr double g_dRounding = 1e-14;           // of the size of the whole figure
constexpr double g_dSmallest = 1.0 / (1 << 22); // of a piece
constexpr double g_dFirstStep = g_dSmallest / (1 << 8);
constexpr long long g_nBudget = 1'000'000; // visited pairs; common stretches would take any number

/// A place on both curves by their parameters.
struct CMeeting {
    double m_dOnA, m_dOnB;
};

/// Where the curves may cross: found by Newton's method, or only narrowed down.
struct CContact {
    CMeeting m_place;
    bool m_bExact;
};

/// A part of a piece with its own Bézier points.
struct CPart {
    std::size_t m_nPiece;
    double m_dFrom, m_dTo; ///< within the piece
    CBezier m_hull;

    double Width() const { return m_dTo - m_dFrom; }
    double Global(double local) const { return static_cast<double>(m_nPiece) + m_dFrom + Width() * local; }
};

AcGePoint2d Middle(const AcGePoint2d& a, const AcGePoint2d& b) {
    return {(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
}

std::pair<CPart, CPart> Halves(const CPart& part) {
    const auto& p = part.m_hull.m_arPoints;
    const AcGePoint2d p01 = Middle(p[0], p[1]), p12 = Middle(p[1], p[2]), p23 = Middle(p[2], p[3]);
    const AcGePoint2d p012 = Middle(p01, p12), p123 = Middle(p12, p23), mid = Middle(p012, p123);
    const double half = (part.m_dFrom + part.m_dTo) / 2.0;
    return {{part.m_nPiece, part.m_dFrom, half, {{p[0], p01, p012, mid}}},
            {part.m_nPiece, half, part.m_dTo, {{mid, p123, p23, p[3]}}}};
}

double Cross(const AcGePoint2d& from, const AcGePoint2d& to, const AcGePoint2d& from2,
             const AcGePoint2d& to2) {
    return (to.x - from.x) * (to2.y - from2.y) - (to.y - from.y) * (to2.x - from2.x);
}

/// Least and greatest distance of the Bézier points from the line from-to, times its length.
std::pair<double, double> Band(const CBezier& hull, const AcGePoint2d& from, const AcGePoint2d& to) {
    const auto& p = hull.m_arPoints;
    return std::minmax({Cross(from, to, from, p[0]), Cross(from, to, from, p[1]), Cross(from, to, from, p[2]),
                        Cross(from, to, from, p[3])});
}

/// True when one part lies on one side of a strip along the other's chord that holds the other.
bool IsBeside(const CBezier& hull, const CBezier& other) {
    const AcGePoint2d &from = hull.m_arPoints[0], &to = hull.m_arPoints[3];
    const double gap = g_dRounding * from.distanceTo(to);
    const auto [least, most] = Band(hull, from, to);
    const auto [otherLeast, otherMost] = Band(other, from, to);
    return otherLeast > most + gap || otherMost < least - gap;
}

/// True when no tangent of one part is parallel to one of the other: all differences of neighbouring Bézier
/// points turn the same way from one part to the other, and so do all their positive sums.
bool IsNeverParallel(const CBezier& a, const CBezier& b) {
    int left = 0, right = 0;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const double turn =
                Cross(a.m_arPoints[i], a.m_arPoints[i + 1], b.m_arPoints[j], b.m_arPoints[j + 1]);
            left += turn > 0.0;
            right += turn < 0.0;
        }
    return left == 9 || right == 9;
}

/// Where a curve leaves the neighbourhood of another.
struct CLeaving {
    bool m_bLeaves = false; ///< false: an end of either curve comes first, or they run along each other
    double m_dOnCurve = 0.0, m_dOnOther = 0.0;
    bool m_bLeft = false; ///< to the left of the other curve
};

class CCrossingSearch {
public:
    CCrossingSearch(const CBezierChain& a, const CBezierChain& b, double tolerance)
        : m_a(a)
        , m_b(b)
        , m_dTolerance(tolerance) {}

    std::vector<CMeeting> Run() {
        VisitNodes(1, 1);
        SettleContacts();
        AddTouchingEnds(m_a, m_b, false);
        AddTouchingEnds(m_b, m_a, true);
        std::erase_if(m_arFound, [this](const CMeeting& place) { return IsCommonEnd(place); });
        Merge();
        return std::move(m_arFound);
    }

private:
    void VisitNodes(std::size_t nodeA, std::size_t nodeB) {
        if (--m_nBudget < 0 || !m_a.Exists(nodeA) || !m_b.Exists(nodeB)) return;
        if (m_a.NodeBox(nodeA).IsApartFrom(m_b.NodeBox(nodeB), g_dRounding)) return;
        const bool bLeafA = m_a.IsLeaf(nodeA), bLeafB = m_b.IsLeaf(nodeB);
        if (bLeafA && bLeafB) {
            const std::size_t i = m_a.PieceOf(nodeA), j = m_b.PieceOf(nodeB);
            if (!IsSamePiece(m_a.Pieces()[i], m_b.Pieces()[j]))
                VisitParts({i, 0.0, 1.0, m_a.Pieces()[i]}, {j, 0.0, 1.0, m_b.Pieces()[j]});
        } else if (bLeafB || (!bLeafA && m_a.NodeBox(nodeA).Size() >= m_b.NodeBox(nodeB).Size())) {
            VisitNodes(2 * nodeA, nodeB);
            VisitNodes(2 * nodeA + 1, nodeB);
        } else {
            VisitNodes(nodeA, 2 * nodeB);
            VisitNodes(nodeA, 2 * nodeB + 1);
        }
    }

    static bool IsSamePiece(const CBezier& a, const CBezier& b) {
        bool bSame = true, bReversed = true;
        for (std::size_t i = 0; i < 4; ++i) {
            bSame = bSame && a.m_arPoints[i].distanceTo(b.m_arPoints[i]) == 0.0;
            bReversed = bReversed && a.m_arPoints[i].distanceTo(b.m_arPoints[3 - i]) == 0.0;
        }
        return bSame || bReversed;
    }

    void VisitParts(const CPart& a, const CPart& b) {
        if (--m_nBudget < 0) return;
        const CFlatBox boxA = BoxOf(a.m_hull), boxB = BoxOf(b.m_hull);
        if (boxA.IsApartFrom(boxB, g_dRounding) || IsBeside(a.m_hull, b.m_hull) ||
            IsBeside(b.m_hull, a.m_hull))
            return;
        const bool bCrossesOnce = IsNeverParallel(a.m_hull, b.m_hull);
        if (bCrossesOnce && FindTheOne(a, b)) return;
        const bool bSmallA = a.Width() <= g_dSmallest, bSmallB = b.Width() <= g_dSmallest;
        if (bSmallA && bSmallB) {
            if (!bCrossesOnce) m_arContacts.push_back({{a.Global(0.5), b.Global(0.5)}, false});
            return;
        }
        if (!bCrossesOnce && RunsAlong(a, b)) return;
        if (bSmallB || (!bSmallA && boxA.Size() >= boxB.Size())) {
            const auto [first, second] = Halves(a);
            VisitParts(first, b);
            VisitParts(second, b);
        } else {
            const auto [first, second] = Halves(b);
            VisitParts(a, first);
            VisitParts(a, second);
        }
    }

    /// Newton's method for the one crossing that two parts can have; true when it lies in both.
    bool FindTheOne(const CPart& a, const CPart& b) {
        constexpr int most = 12;
        constexpr double slack = 1e-7; // of a part: a crossing at its very end may come out beyond it
        const CBezier &pieceA = m_a.Pieces()[a.m_nPiece], &pieceB = m_b.Pieces()[b.m_nPiece];
        double s = 0.5, t = 0.5;
        for (int round = 0; round < most; ++round) {
            const double onA = a.m_dFrom + a.Width() * s, onB = b.m_dFrom + b.Width() * t;
            const AcGePoint2d pa = pieceA.At(onA), pb = pieceB.At(onB);
            const AcGeVector2d da = pieceA.SlopeAt(onA), db = pieceB.SlopeAt(onB);
            const double dx = pb.x - pa.x, dy = pb.y - pa.y, det = da.x * db.y - da.y * db.x;
            if (det == 0.0) return false;
            const double stepA = (dx * db.y - dy * db.x) / det / a.Width();
            const double stepB = (dx * da.y - dy * da.x) / det / b.Width();
            s = std::clamp(s + stepA, -0.5, 1.5);
            t = std::clamp(t + stepB, -0.5, 1.5);
            if (std::fabs(stepA) + std::fabs(stepB) < 1e-15) break;
        }
        if (s < -slack || s > 1.0 + slack || t < -slack || t > 1.0 + slack) return false;
        const CMeeting place{Clamped(a, s), Clamped(b, t)};
        if (!(m_a.At(place.m_dOnA).distanceTo(m_b.At(place.m_dOnB)) <= m_dTolerance / 4.0)) return false;
        m_arContacts.push_back({place, true});
        return true;
    }

    static double Clamped(const CPart& part, double local) {
        const auto first = static_cast<double>(part.m_nPiece);
        return std::clamp(part.Global(local), first, first + 1.0);
    }

    /// True when a part of a lies on b all along. Asked at two sizes only, the finer one with a tolerance
    /// that a contact of third order (distance: the cube of the way) still exceeds.
    bool RunsAlong(const CPart& a, const CPart& b) {
        const bool bCoarse = a.Width() == 1.0 / 32.0, bFine = a.Width() == 1.0 / 1024.0;
        if (!bCoarse && !bFine) return false;
        m_nBudget -= 20;
        const double near = bCoarse ? m_dTolerance / 10.0 : std::max(m_dTolerance / 1000.0, g_dRounding);
        constexpr int steps = 4;
        double u = b.Global(0.5);
        for (int step = 0; step <= steps; ++step) {
            const AcGePoint2d point = m_a.At(a.Global(static_cast<double>(step) / steps));
            u = m_b.Project(u, point);
            if (!(m_b.At(u).distanceTo(point) <= near)) return false;
        }
        return true;
    }

    /// Follows a curve from u (forward or back), where it is near the other at v, until it is off it.
    CLeaving Leave(const CBezierChain& curve, double u, double direction, const CBezierChain& other,
                   double v) {
        constexpr double longest = 0.01; // of the curve's size; nearer for longer is a common stretch
        const AcGePoint2d start = curve.At(u);
        double step = g_dFirstStep, next = u;
        while (--m_nSteps > 0) {
            next = std::clamp(next + direction * step, 0.0, curve.End());
            const AcGePoint2d point = curve.At(next);
            v = other.Project(v, point);
            step = std::min(2.0 * step, PieceStep(curve, next, other, v));
            const AcGePoint2d foot = other.At(v);
            const bool bOtherEnds = v <= 0.0 || v >= other.End();
            if (foot.distanceTo(point) > m_dTolerance / 2.0) {
                const AcGeVector2d along = other.Derivative(v);
                const double side = along.x * (point.y - foot.y) - along.y * (point.x - foot.x);
                return {!bOtherEnds, next, v, side > 0.0};
            }
            const bool bEnds = next <= 0.0 || next >= curve.End();
            if (bEnds || point.distanceTo(start) > longest * curve.Box().Size())
                return {false, next, v, false};
        }
        return {false, next, v, false};
    }

    /// The step on a curve that is no longer than a piece of either: the foot is sought downhill, and must
    /// not be lost.
    static double PieceStep(const CBezierChain& curve, double u, const CBezierChain& other, double v) {
        const double pace = curve.Derivative(u).length(), otherPace = other.Derivative(v).length();
        return pace > otherPace ? std::max(otherPace / pace, g_dFirstStep) : 1.0;
    }

    /// How far left of b (negative: right) a runs at u; v is moved to the foot.
    double SideOfB(double u, double& v) const {
        const AcGePoint2d point = m_a.At(u);
        v = m_b.Project(v, point);
        const AcGePoint2d foot = m_b.At(v);
        const AcGeVector2d along = m_b.Derivative(v);
        return along.x * (point.y - foot.y) - along.y * (point.x - foot.x);
    }

    /// Keeps of all contacts those where a comes on one side of b and goes on the other. What lies between
    /// coming and going is one contact, however often the arithmetic found it.
    void SettleContacts() {
        std::sort(m_arContacts.begin(), m_arContacts.end(),
                  [](const CContact& x, const CContact& y) { return x.m_place.m_dOnA < y.m_place.m_dOnA; });
        CLeaving before, after; // about the last contact looked at
        after.m_dOnCurve = -1.0;
        for (const CContact& contact : m_arContacts) {
            const CMeeting& place = contact.m_place;
            const auto [least, most] = std::minmax(before.m_dOnOther, after.m_dOnOther);
            if (place.m_dOnA <= after.m_dOnCurve && place.m_dOnB >= least && place.m_dOnB <= most) continue;
            const double v = m_b.Project(place.m_dOnB, m_a.At(place.m_dOnA));
            before = Leave(m_a, place.m_dOnA, -1.0, m_b, v);
            after = Leave(m_a, place.m_dOnA, 1.0, m_b, v);
            if (!before.m_bLeaves || !after.m_bLeaves || before.m_bLeft == after.m_bLeft) continue;
            m_arFound.push_back(contact.m_bExact ? place : Bisected(before, after));
        }
    }

    CMeeting Bisected(const CLeaving& before, const CLeaving& after) const {
        double low = before.m_dOnCurve, high = after.m_dOnCurve, v = before.m_dOnOther;
        constexpr int rounds = 60;
        for (int round = 0; round < rounds; ++round) {
            const double mid = (low + high) / 2.0;
            ((SideOfB(mid, v) > 0.0) == before.m_bLeft ? low : high) = mid;
        }
        v = m_b.Project(v, m_a.At(low));
        return {low, v};
    }

    /// Ends of a curve that lie on the inside of the other.
    void AddTouchingEnds(const CBezierChain& curve, const CBezierChain& other, bool bSwapped) {
        for (const double end : {0.0, curve.End()}) {
            const AcGePoint2d point = curve.At(end);
            const std::optional<double> foot = FootOf(point, other);
            if (!foot || IsAtEnd(other, *foot)) continue;
            if (!Leave(curve, end, end == 0.0 ? 1.0 : -1.0, other, *foot).m_bLeaves) continue;
            m_arFound.push_back(bSwapped ? CMeeting{*foot, end} : CMeeting{end, *foot});
        }
    }

    /// Where the curve passes through the point; nothing if it doesn't.
    std::optional<double> FootOf(const AcGePoint2d& point, const CBezierChain& curve) {
        const CFlatBox box{point.x, point.y, point.x, point.y};
        std::vector<std::size_t> nodes{1};
        while (!nodes.empty() && --m_nBudget > 0) {
            const std::size_t node = nodes.back();
            nodes.pop_back();
            if (!curve.Exists(node) || curve.NodeBox(node).IsApartFrom(box, m_dTolerance)) continue;
            if (!curve.IsLeaf(node)) {
                nodes.push_back(2 * node + 1);
                nodes.push_back(2 * node);
                continue;
            }
            constexpr int starts = 8;
            for (int start = 0; start <= starts; ++start) {
                const double u =
                    static_cast<double>(curve.PieceOf(node)) + static_cast<double>(start) / starts;
                const double foot = curve.Project(u, point);
                if (curve.At(foot).distanceTo(point) <= 0.9 * m_dTolerance) return foot;
            }
        }
        return {};
    }

    bool IsAtEnd(const CBezierChain& curve, double u) const {
        const AcGePoint2d point = curve.At(u);
        const double end = u < curve.End() / 2.0 ? 0.0 : curve.End();
        return point.distanceTo(curve.At(end)) <= 2.0 * m_dTolerance && std::fabs(u - end) < 1.0;
    }

    bool IsCommonEnd(const CMeeting& place) const {
        return IsAtEnd(m_a, place.m_dOnA) && IsAtEnd(m_b, place.m_dOnB);
    }

    /// Puts the crossings in order along a, each once: one at a joint is found from both sides.
    void Merge() {
        std::sort(m_arFound.begin(), m_arFound.end(),
                  [](const CMeeting& x, const CMeeting& y) { return x.m_dOnA < y.m_dOnA; });
        const auto same = [this](const CMeeting& x, const CMeeting& y) {
            return y.m_dOnA - x.m_dOnA < 0.5 &&
                   m_a.At(x.m_dOnA).distanceTo(m_a.At(y.m_dOnA)) <= 2.0 * m_dTolerance;
        };
        m_arFound.erase(std::unique(m_arFound.begin(), m_arFound.end(), same), m_arFound.end());
    }

    const CBezierChain &m_a, &m_b;
    double m_dTolerance;
    long long m_nBudget = g_nBudget, m_nSteps = g_nBudget;
    std::vector<CContact> m_arContacts;
    std::vector<CMeeting> m_arFound;
};

/// The curve moved by -origin and then scaled.
std::vector<CBezier> Moved(std::vector<CBezier> pieces, const AcGePoint2d& origin, double scale) {
    for (CBezier& piece : pieces)
        for (AcGePoint2d& point : piece.m_arPoints)
            point.set((point.x - origin.x) * scale, (point.y - origin.y) * scale);
    return pieces;
}

} // namespace

std::vector<AcGePoint2d> Crossings(const std::vector<CBezier>& a, const std::vector<CBezier>& b) {
    if (a.empty() || b.empty()) return {};
    if (!std::ranges::all_of(a, &CBezier::IsFinite) || !std::ranges::all_of(b, &CBezier::IsFinite)) return {};
    const CBezierChain original(a);
    const CFlatBox boxA = original.Box(), boxB = CBezierChain(b).Box();
    const AcGePoint2d origin((boxA.m_dMinX + boxA.m_dMaxX) / 2.0, (boxA.m_dMinY + boxA.m_dMaxY) / 2.0);
    const double size = std::max(boxA.Size(), boxB.Size());
    if (boxA.IsApartFrom(boxB, g_dTolerance) || !(size > 0.0) || !std::isfinite(size)) return {};
    // About the origin and of size 1 the arithmetic is at its best; a power of two changes no digit.
    const double scale = std::ldexp(1.0, -std::ilogb(size));
    const CBezierChain movedA(Moved(a, origin, scale)), movedB(Moved(b, origin, scale));
    std::vector<AcGePoint2d> points;
    for (const CMeeting& place : CCrossingSearch(movedA, movedB, g_dTolerance * scale).Run())
        points.push_back(original.At(place.m_dOnA));
    return points;
}
