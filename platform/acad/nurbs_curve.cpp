#include "platform/acad/nurbs_curve.h"

#include "platform/acad/spline_curve.h"

#include <algorithm>

namespace {

constexpr int g_nMaxDegree = 15; // a guard against nonsense; drawings have 1 to 11
constexpr int g_nChordsOfSpan = 32;

/// A control point times its weight, and the weight.
struct CWeighted {
    double m_dX, m_dY, m_dWeight;
};

CWeighted Between(const CWeighted& a, const CWeighted& b, double place) {
    return {a.m_dX + (b.m_dX - a.m_dX) * place, a.m_dY + (b.m_dY - a.m_dY) * place,
            a.m_dWeight + (b.m_dWeight - a.m_dWeight) * place};
}

/// The blossom of the piece between the knots span and span + 1: degree arguments, all equal for a point of
/// the curve, at the ends of the piece for its Bézier points.
AcGePoint2d Blossom(const CNurbs& nurbs, std::size_t span, const std::vector<double>& arArguments) {
    const auto degree = static_cast<std::size_t>(nurbs.m_nDegree);
    std::vector<CWeighted> row;
    for (std::size_t i = span - degree; i <= span; ++i) {
        const double weight = nurbs.m_arWeights.empty() ? 1.0 : nurbs.m_arWeights[i];
        const AcGePoint3d& point = nurbs.m_arControlPoints[i];
        row.push_back({point.x * weight, point.y * weight, weight});
    }
    for (std::size_t level = 1; level <= degree; ++level)
        for (std::size_t i = 0; i + level <= degree; ++i) {
            const double low = nurbs.m_arKnots[span - degree + level + i],
                         high = nurbs.m_arKnots[span + 1 + i];
            row[i] = Between(row[i], row[i + 1], (arArguments[level - 1] - low) / (high - low));
        }
    return {row[0].m_dX / row[0].m_dWeight, row[0].m_dY / row[0].m_dWeight};
}

CBezier CubicPiece(const CNurbs& nurbs, std::size_t span) {
    const double a = nurbs.m_arKnots[span], b = nurbs.m_arKnots[span + 1];
    return {{Blossom(nurbs, span, {a, a, a}), Blossom(nurbs, span, {a, a, b}),
             Blossom(nurbs, span, {a, b, b}), Blossom(nurbs, span, {b, b, b})}};
}

CBezier Chord(const AcGePoint2d& from, const AcGePoint2d& to) {
    const double dx = (to.x - from.x) / 3.0, dy = (to.y - from.y) / 3.0;
    return {{from, AcGePoint2d(from.x + dx, from.y + dy), AcGePoint2d(to.x - dx, to.y - dy), to}};
}

void AppendChords(const CNurbs& nurbs, std::size_t span, std::vector<CBezier>& pieces) {
    const double a = nurbs.m_arKnots[span], b = nurbs.m_arKnots[span + 1];
    const auto at = [&](int step) {
        const double u = step == g_nChordsOfSpan ? b : a + (b - a) * step / g_nChordsOfSpan;
        return Blossom(nurbs, span, std::vector<double>(static_cast<std::size_t>(nurbs.m_nDegree), u));
    };
    AcGePoint2d from = at(0);
    for (int step = 1; step <= g_nChordsOfSpan; ++step) {
        const AcGePoint2d to = at(step);
        pieces.push_back(Chord(from, to));
        from = to;
    }
}

} // namespace

bool CNurbs::IsCurve() const {
    if (m_nDegree < 1 || m_nDegree > g_nMaxDegree) return false;
    const auto degree = static_cast<std::size_t>(m_nDegree);
    return m_arControlPoints.size() > degree && m_arKnots.size() == m_arControlPoints.size() + degree + 1 &&
           std::is_sorted(m_arKnots.begin(), m_arKnots.end()) &&
           (m_arWeights.empty() || m_arWeights.size() == m_arControlPoints.size()) &&
           std::all_of(m_arWeights.begin(), m_arWeights.end(), [](double weight) { return weight > 0.0; });
}

CNurbs NurbsThrough(const std::vector<AcGePoint3d>& points) {
    CNurbs nurbs;
    const std::vector<CBezier> pieces = NaturalSpline(points);
    if (pieces.empty()) return nurbs;
    const auto add = [&](const AcGePoint2d& point) {
        nurbs.m_arControlPoints.emplace_back(point.x, point.y, points.front().z);
    };
    const auto length = [](const CBezier& piece) {
        return piece.m_arPoints[0].distanceTo(piece.m_arPoints[3]);
    };
    add(pieces.front().m_arPoints[0]);
    add(pieces.front().m_arPoints[1]);
    nurbs.m_arKnots.assign(4, 0.0);
    for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
        // The tangent polygon of the next piece, carried back over the whole of this one.
        const double back = length(pieces[i]) / length(pieces[i + 1]);
        const AcGePoint2d &first = pieces[i + 1].m_arPoints[1], &second = pieces[i + 1].m_arPoints[2];
        add({first.x - (second.x - first.x) * back, first.y - (second.y - first.y) * back});
        nurbs.m_arKnots.push_back(nurbs.m_arKnots.back() + length(pieces[i]));
    }
    add(pieces.back().m_arPoints[2]);
    add(pieces.back().m_arPoints[3]);
    nurbs.m_arKnots.insert(nurbs.m_arKnots.end(), 4, nurbs.m_arKnots.back() + length(pieces.back()));
    return nurbs;
}

std::vector<CBezier> PiecesOf(const CNurbs& nurbs) {
    if (!nurbs.IsCurve()) return {};
    std::vector<CBezier> pieces;
    const bool bCubic = nurbs.m_nDegree == 3 && nurbs.m_arWeights.empty();
    for (auto span = static_cast<std::size_t>(nurbs.m_nDegree); span < nurbs.m_arControlPoints.size();
         ++span) {
        if (!(nurbs.m_arKnots[span] < nurbs.m_arKnots[span + 1])) continue;
        if (bCubic) {
            pieces.push_back(CubicPiece(nurbs, span));
        } else {
            AppendChords(nurbs, span, pieces);
        }
    }
    const bool bFinite = std::ranges::all_of(pieces, &CBezier::IsFinite);
    return bFinite ? pieces : std::vector<CBezier>();
}
