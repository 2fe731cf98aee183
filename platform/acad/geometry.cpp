#include "platform/acad/geometry.h"

#include <algorithm>

AcGeTol AcGeContext::gTol;

const AcGeVector3d AcGeVector3d::kIdentity(0.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kXAxis(1.0, 0.0, 0.0);
const AcGeVector3d AcGeVector3d::kYAxis(0.0, 1.0, 0.0);
const AcGeVector3d AcGeVector3d::kZAxis(0.0, 0.0, 1.0);
const AcGePoint3d AcGePoint3d::kOrigin(0.0, 0.0, 0.0);

namespace {

/// The upper left 3 x 3 part from nine factors, with the offset that leaves fixed where it is.
AcGeMatrix3d AboutPoint(const double (&factors)[3][3], const AcGePoint3d& fixed) {
    AcGeMatrix3d matrix;
    const double p[3] = {fixed.x, fixed.y, fixed.z};
    for (int row = 0; row < 3; ++row) {
        double moved = 0.0;
        for (int col = 0; col < 3; ++col) {
            matrix.entry[row][col] = factors[row][col];
            moved += factors[row][col] * p[col];
        }
        matrix.entry[row][3] = p[row] - moved;
    }
    return matrix;
}

} // namespace

AcGeVector3d& AcGeVector3d::transformBy(const AcGeMatrix3d& matrix) {
    const auto& e = matrix.entry;
    return set(e[0][0] * x + e[0][1] * y + e[0][2] * z, e[1][0] * x + e[1][1] * y + e[1][2] * z,
               e[2][0] * x + e[2][1] * y + e[2][2] * z);
}

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& matrix) {
    const auto& e = matrix.entry;
    return set(e[0][0] * x + e[0][1] * y + e[0][2] * z + e[0][3],
               e[1][0] * x + e[1][1] * y + e[1][2] * z + e[1][3],
               e[2][0] * x + e[2][1] * y + e[2][2] * z + e[2][3]);
}

AcGeMatrix3d& AcGeMatrix3d::setToIdentity() {
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 4; ++col)
            entry[row][col] = row == col ? 1.0 : 0.0;
    return *this;
}

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& right) const {
    AcGeMatrix3d product;
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 4; ++col) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k)
                sum += entry[row][k] * right.entry[k][col];
            product.entry[row][col] = sum;
        }
    return product;
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& offset) {
    AcGeMatrix3d matrix;
    matrix.entry[0][3] = offset.x;
    matrix.entry[1][3] = offset.y;
    matrix.entry[2][3] = offset.z;
    return matrix;
}

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center) {
    const AcGeVector3d n = axis.normal();
    const double c = std::cos(angle), s = std::sin(angle), t = 1.0 - c;
    const double factors[3][3] = {
        {t * n.x * n.x + c, t * n.x * n.y - s * n.z, t * n.x * n.z + s * n.y},
        {t * n.x * n.y + s * n.z, t * n.y * n.y + c, t * n.y * n.z - s * n.x},
        {t * n.x * n.z - s * n.y, t * n.y * n.z + s * n.x, t * n.z * n.z + c},
    };
    return AboutPoint(factors, center);
}

AcGeMatrix3d AcGeMatrix3d::scaling(double factor, const AcGePoint3d& center) {
    return scaling(AcGeScale3d(factor), center);
}

AcGeMatrix3d AcGeMatrix3d::scaling(const AcGeScale3d& factors, const AcGePoint3d& center) {
    const double part[3][3] = {{factors.sx, 0.0, 0.0}, {0.0, factors.sy, 0.0}, {0.0, 0.0, factors.sz}};
    return AboutPoint(part, center);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePoint3d& point, const AcGeVector3d& planeNormal) {
    const AcGeVector3d n = planeNormal.normal();
    const double factors[3][3] = {
        {1.0 - 2.0 * n.x * n.x, -2.0 * n.x * n.y, -2.0 * n.x * n.z},
        {-2.0 * n.x * n.y, 1.0 - 2.0 * n.y * n.y, -2.0 * n.y * n.z},
        {-2.0 * n.x * n.z, -2.0 * n.y * n.z, 1.0 - 2.0 * n.z * n.z},
    };
    return AboutPoint(factors, point);
}

void AcDbExtents::addPoint(const AcGePoint3d& point) {
    if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.z)) return;
    if (m_bEmpty) {
        m_ptMin = m_ptMax = point;
        m_bEmpty = false;
        return;
    }
    m_ptMin.set(std::min(m_ptMin.x, point.x), std::min(m_ptMin.y, point.y), std::min(m_ptMin.z, point.z));
    m_ptMax.set(std::max(m_ptMax.x, point.x), std::max(m_ptMax.y, point.y), std::max(m_ptMax.z, point.z));
}

void AcDbExtents::addExt(const AcDbExtents& other) {
    if (other.isEmpty()) return;
    addPoint(other.minPoint());
    addPoint(other.maxPoint());
}
