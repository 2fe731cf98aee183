#include "host/files/dxf_plane.h"

#include <array>
#include <cmath>

AcGeMatrix3d DxfPlaneToDrawing(const AcGeVector3d& normal) {
    constexpr double dNearZ = 1.0 / 64.0;
    const AcGeVector3d z = normal.normal();
    const bool bNearZ = std::fabs(z.x) < dNearZ && std::fabs(z.y) < dNearZ;
    const AcGeVector3d x = (bNearZ ? AcGeVector3d::kYAxis : AcGeVector3d::kZAxis).crossProduct(z).normal();
    const AcGeVector3d y = z.crossProduct(x);
    AcGeMatrix3d matrix;
    int nColumn = 0;
    for (const AcGeVector3d& axis : std::array{x, y, z}) {
        matrix.entry[0][nColumn] = axis.x;
        matrix.entry[1][nColumn] = axis.y;
        matrix.entry[2][nColumn] = axis.z;
        ++nColumn;
    }
    return matrix;
}
