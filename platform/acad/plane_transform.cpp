#include "platform/acad/plane_transform.h"

std::optional<CPlaneTransform> PlaneTransform(const AcGeMatrix3d& xform) {
    for (const auto& row : xform.entry)
        for (const double factor : row)
            if (!std::isfinite(factor)) return {};
    AcGeVector3d x = AcGeVector3d::kXAxis, y = AcGeVector3d::kYAxis;
    x.transformBy(xform);
    y.transformBy(xform);
    const double scale = x.length();
    const double tolerance = 1e-9 * scale;
    if (!(scale > 0.0) || std::fabs(y.length() - scale) > tolerance) return {};
    if (std::fabs(x.dotProduct(y)) > tolerance * scale) return {};
    if (std::fabs(x.z) > tolerance || std::fabs(y.z) > tolerance) return {};
    return CPlaneTransform{scale, std::atan2(x.y, x.x), x.x * y.y - x.y * y.x < 0.0};
}
