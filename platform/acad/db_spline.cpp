#include "platform/acad/db_spline.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/rx_class.h"
#include "platform/acad/spline_curve.h"

ACRX_DEFINE_MEMBERS(AcDbSpline, AcDbEntity, L"SPLINE")

AcDbSpline::AcDbSpline(const AcGePoint3dArray& fitPoints, int order, double fitTolerance)
    : m_arFitPoints(fitPoints.begin(), fitPoints.end())
    , m_nOrder(order)
    , m_dFitTolerance(fitTolerance) {}

Acad::ErrorStatus AcDbSpline::intersectWith(const AcDbSpline* pOther, AcDb::Intersect mode,
                                            AcGePoint3dArray& points, Adesk::GsMarker,
                                            Adesk::GsMarker) const {
    assertReadEnabled();
    if (!pOther) return Acad::eNullObjectPointer;
    pOther->assertReadEnabled();
    if (mode != AcDb::kOnBothOperands) return Acad::eNotImplementedYet;
    const std::vector<CBezier> mine = NaturalSpline(m_arFitPoints),
                               other = NaturalSpline(pOther->m_arFitPoints);
    if (mine.empty() || other.empty()) return Acad::eDegenerateGeometry;
    for (const AcGePoint2d& crossing : Crossings(mine, other))
        points.append({crossing.x, crossing.y, 0.0});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeInt32(m_nOrder);
    pFiler->writeDouble(m_dFitTolerance);
    pFiler->writeInt32(numFitPoints());
    for (const AcGePoint3d& point : m_arFitPoints)
        pFiler->writePoint3d(point);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbSpline::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    Adesk::Int32 nPoints = 0;
    pFiler->readInt32(&m_nOrder);
    pFiler->readDouble(&m_dFitTolerance);
    pFiler->readInt32(&nPoints);
    m_arFitPoints.clear();
    for (Adesk::Int32 i = 0; i < nPoints; ++i) {
        AcGePoint3d point;
        if (pFiler->readPoint3d(&point) != Acad::eOk) break;
        m_arFitPoints.push_back(point);
    }
    return pFiler->filerStatus();
}

Adesk::Boolean AcDbSpline::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    pMode->rawGeometry()->spline(*this);
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbSpline::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    CPrimitive primitive;
    primitive.m_shape = CSplinePrimitive{m_arFitPoints, m_nOrder, m_dFitTolerance};
    const AcDbExtents box = ExtentsOf({primitive});
    if (box.isEmpty()) return Acad::eInvalidExtents;
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    for (AcGePoint3d& point : m_arFitPoints)
        point.transformBy(xform);
    return Acad::eOk;
}
