#include "platform/acad/bezier_chain.h"

#include <algorithm>
#include <limits>

namespace {

CFlatBox Joined(const CFlatBox& a, const CFlatBox& b) {
    return {std::min(a.m_dMinX, b.m_dMinX), std::min(a.m_dMinY, b.m_dMinY), std::max(a.m_dMaxX, b.m_dMaxX),
            std::max(a.m_dMaxY, b.m_dMaxY)};
}

} // namespace

CFlatBox BoxOf(const CBezier& piece) {
    const auto& p = piece.m_arPoints;
    const auto [minX, maxX] = std::minmax({p[0].x, p[1].x, p[2].x, p[3].x});
    const auto [minY, maxY] = std::minmax({p[0].y, p[1].y, p[2].y, p[3].y});
    return {minX, minY, maxX, maxY};
}

CBezierChain::CBezierChain(std::vector<CBezier> pieces)
    : m_arPieces(std::move(pieces)) {
    while (m_nLeaves < m_arPieces.size())
        m_nLeaves *= 2;
    constexpr double far = std::numeric_limits<double>::infinity();
    m_arBoxes.assign(2 * m_nLeaves, CFlatBox{far, far, -far, -far});
    for (std::size_t i = 0; i < m_arPieces.size(); ++i)
        m_arBoxes[m_nLeaves + i] = BoxOf(m_arPieces[i]);
    for (std::size_t node = m_nLeaves; node-- > 1;)
        m_arBoxes[node] = Joined(m_arBoxes[2 * node], m_arBoxes[2 * node + 1]);
}

std::size_t CBezierChain::PieceAt(double u) const {
    if (!(u > 0.0)) return 0;
    return std::min(static_cast<std::size_t>(std::min(u, End())), m_arPieces.size() - 1);
}

AcGePoint2d CBezierChain::At(double u) const {
    const std::size_t piece = PieceAt(u);
    return m_arPieces[piece].At(u - static_cast<double>(piece));
}

AcGeVector2d CBezierChain::Derivative(double u) const {
    const std::size_t piece = PieceAt(u);
    return m_arPieces[piece].SlopeAt(u - static_cast<double>(piece));
}

double CBezierChain::Project(double u, const AcGePoint2d& point) const {
    constexpr int most = 30;
    for (int round = 0; round < most; ++round) {
        const AcGePoint2d at = At(u);
        const AcGeVector2d slope = Derivative(u);
        const double square = slope.x * slope.x + slope.y * slope.y;
        if (!(square > 0.0)) break;
        const double step = ((point.x - at.x) * slope.x + (point.y - at.y) * slope.y) / square;
        const double next = std::clamp(u + std::clamp(step, -0.5, 0.5), 0.0, End());
        if (next == u) break;
        u = next;
    }
    return u;
}
