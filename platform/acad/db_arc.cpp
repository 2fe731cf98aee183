#include "platform/acad/db_arc.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/plane_transform.h"
#include "platform/acad/rx_class.h"

#include <cmath>
#include <numbers>

ACRX_DEFINE_MEMBERS(AcDbArc, AcDbEntity, L"ARC")

namespace {
constexpr double g_dTurn = 2.0 * std::numbers::pi;
}

AcDbArc::AcDbArc(const AcGePoint3d& center, double radius, double startAngle, double endAngle)
    : m_ptCenter(center)
    , m_dRadius(radius)
    , m_dStartAngle(startAngle)
    , m_dEndAngle(endAngle) {}

Acad::ErrorStatus AcDbArc::setCenter(const AcGePoint3d& center) {
    assertWriteEnabled();
    m_ptCenter = center;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setRadius(double radius) {
    assertWriteEnabled();
    if (!std::isfinite(radius) || radius <= 0.0) return Acad::eInvalidInput;
    m_dRadius = radius;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setStartAngle(double radians) {
    assertWriteEnabled();
    if (!std::isfinite(radians)) return Acad::eInvalidInput;
    m_dStartAngle = radians;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::setEndAngle(double radians) {
    assertWriteEnabled();
    if (!std::isfinite(radians)) return Acad::eInvalidInput;
    m_dEndAngle = radians;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbArc::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writePoint3d(m_ptCenter);
    for (const double value : {m_dRadius, m_dStartAngle, m_dEndAngle})
        pFiler->writeDouble(value);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbArc::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readPoint3d(&m_ptCenter);
    for (double* pValue : {&m_dRadius, &m_dStartAngle, &m_dEndAngle})
        pFiler->readDouble(pValue);
    return pFiler->filerStatus();
}

double AcDbArc::Sweep() const {
    const double dSweep = std::fmod(m_dEndAngle - m_dStartAngle, g_dTurn);
    return dSweep > 0.0 ? dSweep : dSweep + g_dTurn;
}

Adesk::Boolean AcDbArc::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    pMode->rawGeometry()->circularArc(m_ptCenter, m_dRadius, normal(),
                                      {std::cos(m_dStartAngle), std::sin(m_dStartAngle), 0.0}, Sweep());
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbArc::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    const AcGeVector3d start(std::cos(m_dStartAngle), std::sin(m_dStartAngle), 0.0);
    return GiveExtents(ExtentsOfShape(CArcPrimitive{m_ptCenter, m_dRadius, normal(), start, Sweep()}),
                       extents);
}

Acad::ErrorStatus AcDbArc::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    const std::optional<CPlaneTransform> plane = PlaneTransform(xform);
    if (!plane) return Acad::eNotApplicable;
    m_ptCenter.transformBy(xform);
    m_dRadius *= plane->m_dScale;
    const double dSweep = Sweep();
    // A mirror image runs the other way round, from the image of the end.
    const double dFirst = plane->m_bMirrored ? -(m_dStartAngle + dSweep) : m_dStartAngle;
    m_dStartAngle = dFirst + plane->m_dTurn;
    m_dEndAngle = m_dStartAngle + dSweep;
    return Acad::eOk;
}

AcGePoint3d AcDbArc::At(double radians) const {
    return m_ptCenter + AcGeVector3d(std::cos(radians), std::sin(radians), 0.0) * m_dRadius;
}

Acad::ErrorStatus AcDbArc::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                            AcDbIntArray&) const {
    assertReadEnabled();
    gripPoints.append(m_ptCenter);
    for (const double angle : {m_dStartAngle, m_dEndAngle, m_dStartAngle + Sweep() / 2.0})
        gripPoints.append(At(angle));
    return Acad::eOk;
}

void AcDbArc::MoveGrip(int index, const AcGeVector3d& offset) {
    if (index == 0) m_ptCenter += offset;
    if (index < 1 || index > 3) return;
    const double dAngle = index == 1   ? m_dStartAngle
                          : index == 2 ? m_dEndAngle
                                       : m_dStartAngle + Sweep() / 2.0;
    AcGeVector3d way = At(dAngle) + offset - m_ptCenter;
    way.z = 0.0;
    if (way.isZeroLength()) return; // onto the centre, where there is no direction
    if (index == 1) m_dStartAngle = std::atan2(way.y, way.x);
    if (index == 2) m_dEndAngle = std::atan2(way.y, way.x);
    if (index == 3) m_dRadius = way.length();
}

Acad::ErrorStatus AcDbArc::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled();
    for (const int index : indices)
        MoveGrip(index, offset);
    return Acad::eOk;
}
