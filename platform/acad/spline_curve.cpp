#include "platform/acad/spline_curve.h"

#include <array>

namespace {

/// The points that differ from the one before them; nothing when a number is not finite.
std::vector<AcGePoint2d> DifferentNeighbours(const std::vector<AcGePoint3d>& points) {
    std::vector<AcGePoint2d> kept;
    kept.reserve(points.size());
    for (const AcGePoint3d& point : points) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.z)) return {};
        const AcGePoint2d flat(point.x, point.y);
        if (kept.empty() || kept.back().distanceTo(flat) > AcGeContext::gTol.equalPoint())
            kept.push_back(flat);
    }
    return kept;
}

/// Second derivatives at the knots of the natural spline through values, the knots h[i] apart: the
/// tridiagonal system of the continuous first derivatives, solved from the front and back again.
std::vector<double> SecondDerivatives(const std::vector<double>& values, const std::vector<double>& h) {
    const std::size_t count = values.size();
    std::vector<double> second(count, 0.0), above(count, 0.0);
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double bend =
            6.0 * ((values[i + 1] - values[i]) / h[i] - (values[i] - values[i - 1]) / h[i - 1]);
        const double pivot = 2.0 * (h[i - 1] + h[i]) - h[i - 1] * above[i - 1];
        above[i] = h[i] / pivot;
        second[i] = (bend - h[i - 1] * second[i - 1]) / pivot;
    }
    for (std::size_t i = count - 1; i-- > 1;)
        second[i] -= above[i] * second[i + 1];
    return second;
}

/// The two inner Bézier values of a piece h long.
std::array<double, 2> InnerValues(double from, double to, double secondFrom, double secondTo, double h) {
    const double slope = (to - from) / h;
    const double slopeFrom = slope - h * (2.0 * secondFrom + secondTo) / 6.0;
    const double slopeTo = slope + h * (secondFrom + 2.0 * secondTo) / 6.0;
    return {from + slopeFrom * h / 3.0, to - slopeTo * h / 3.0};
}

} // namespace

std::vector<CBezier> NaturalSpline(const std::vector<AcGePoint3d>& points) {
    const std::vector<AcGePoint2d> knots = DifferentNeighbours(points);
    if (knots.size() < 2) return {};
    std::vector<double> xs, ys, h;
    for (std::size_t i = 0; i < knots.size(); ++i) {
        xs.push_back(knots[i].x);
        ys.push_back(knots[i].y);
        if (i) h.push_back(knots[i - 1].distanceTo(knots[i]));
    }
    const std::vector<double> xSecond = SecondDerivatives(xs, h), ySecond = SecondDerivatives(ys, h);
    std::vector<CBezier> pieces;
    pieces.reserve(h.size());
    for (std::size_t i = 0; i < h.size(); ++i) {
        const auto x = InnerValues(xs[i], xs[i + 1], xSecond[i], xSecond[i + 1], h[i]);
        const auto y = InnerValues(ys[i], ys[i + 1], ySecond[i], ySecond[i + 1], h[i]);
        pieces.push_back({{knots[i], AcGePoint2d(x[0], y[0]), AcGePoint2d(x[1], y[1]), knots[i + 1]}});
        if (!pieces.back().IsFinite()) return {};
    }
    return pieces;
}
