#include "platform/acad/db_line.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/rx_class.h"

#include <array>

ACRX_DEFINE_MEMBERS(AcDbLine, AcDbEntity, L"LINE")

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point) {
    assertWriteEnabled();
    m_ptStart = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point) {
    assertWriteEnabled();
    m_ptEnd = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writePoint3d(m_ptStart);
    return pFiler->writePoint3d(m_ptEnd);
}

Acad::ErrorStatus AcDbLine::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readPoint3d(&m_ptStart);
    return pFiler->readPoint3d(&m_ptEnd);
}

Adesk::Boolean AcDbLine::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    const std::array arPoints = {m_ptStart, m_ptEnd};
    pMode->rawGeometry()->polyline(2, arPoints.data());
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbLine::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    AcDbExtents box;
    box.addPoint(m_ptStart);
    box.addPoint(m_ptEnd);
    return GiveExtents(box, extents);
}

Acad::ErrorStatus AcDbLine::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    m_ptStart.transformBy(xform);
    m_ptEnd.transformBy(xform);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                             AcDbIntArray&) const {
    assertReadEnabled();
    gripPoints.append(m_ptStart);
    gripPoints.append(m_ptEnd);
    gripPoints.append(m_ptStart + (m_ptEnd - m_ptStart) * 0.5);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled();
    for (const int index : indices) {
        if (index == 0 || index == 2) m_ptStart += offset;
        if (index == 1 || index == 2) m_ptEnd += offset;
    }
    return Acad::eOk;
}
