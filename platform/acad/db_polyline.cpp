#include "platform/acad/db_polyline.h"

#include "platform/acad/bulge_arc.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_line.h"
#include "platform/acad/display_transform.h"
#include "platform/acad/rx_class.h"

#include <algorithm>

ACRX_DEFINE_MEMBERS(AcDbPolyline, AcDbEntity, L"LWPOLYLINE")

namespace {

std::unique_ptr<AcDbEntity> Segment(const CPolylineVertex& from, const CPolylineVertex& to) {
    if (const auto arc = ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge)) {
        const double dOther = arc->m_dStart + arc->m_dSweep;
        return std::make_unique<AcDbArc>(AcGePoint3d(arc->m_ptCenter.x, arc->m_ptCenter.y, 0.0),
                                         arc->m_dRadius, std::min(arc->m_dStart, dOther),
                                         std::max(arc->m_dStart, dOther));
    }
    return std::make_unique<AcDbLine>(AcGePoint3d(from.m_pt.x, from.m_pt.y, 0.0),
                                      AcGePoint3d(to.m_pt.x, to.m_pt.y, 0.0));
}

} // namespace

void AcDbPolyline::setClosed(Adesk::Boolean closed) {
    assertWriteEnabled();
    m_bClosed = closed != Adesk::kFalse;
}

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge,
                                            double startWidth, double endWidth) {
    assertWriteEnabled();
    if (index > numVerts()) return Acad::eInvalidIndex;
    m_arVertices.insert(m_arVertices.begin() + index, {point, bulge, startWidth, endWidth});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::removeVertexAt(unsigned int index) {
    assertWriteEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    m_arVertices.erase(m_arVertices.begin() + index);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint2d& point) const {
    assertReadEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    point = m_arVertices[index].m_pt;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint3d& point) const {
    AcGePoint2d flat;
    const Acad::ErrorStatus status = getPointAt(index, flat);
    if (status == Acad::eOk) point.set(flat.x, flat.y, 0.0);
    return status;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned int index, const AcGePoint2d& point) {
    assertWriteEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    m_arVertices[index].m_pt = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getBulgeAt(unsigned int index, double& bulge) const {
    assertReadEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    bulge = m_arVertices[index].m_dBulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setBulgeAt(unsigned int index, double bulge) {
    assertWriteEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    m_arVertices[index].m_dBulge = bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getWidthsAt(unsigned int index, double& startWidth, double& endWidth) const {
    assertReadEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    startWidth = m_arVertices[index].m_dStartWidth;
    endWidth = m_arVertices[index].m_dEndWidth;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setWidthsAt(unsigned int index, double startWidth, double endWidth) {
    assertWriteEnabled();
    if (index >= numVerts()) return Acad::eInvalidIndex;
    m_arVertices[index].m_dStartWidth = startWidth;
    m_arVertices[index].m_dEndWidth = endWidth;
    return Acad::eOk;
}

void AcDbPolyline::reset(Adesk::Boolean reuse, unsigned int numVerts) {
    assertWriteEnabled();
    m_arVertices.clear();
    if (!reuse) m_arVertices.shrink_to_fit();
    m_arVertices.reserve(numVerts);
}

Acad::ErrorStatus AcDbPolyline::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeBoolean(m_bClosed);
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_arVertices.size()));
    for (const CPolylineVertex& vertex : m_arVertices) {
        pFiler->writePoint2d(vertex.m_pt);
        for (const double value : {vertex.m_dBulge, vertex.m_dStartWidth, vertex.m_dEndWidth})
            pFiler->writeDouble(value);
    }
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbPolyline::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    Adesk::Boolean bClosed = Adesk::kFalse;
    Adesk::Int32 nVertices = 0;
    pFiler->readBoolean(&bClosed);
    m_bClosed = bClosed != Adesk::kFalse;
    pFiler->readInt32(&nVertices);
    m_arVertices.clear();
    for (Adesk::Int32 i = 0; i < nVertices; ++i) {
        CPolylineVertex vertex;
        pFiler->readPoint2d(&vertex.m_pt);
        for (double* pValue : {&vertex.m_dBulge, &vertex.m_dStartWidth, &vertex.m_dEndWidth})
            pFiler->readDouble(pValue);
        if (pFiler->filerStatus() != Acad::eOk) break;
        m_arVertices.push_back(vertex);
    }
    return pFiler->filerStatus();
}

Adesk::Boolean AcDbPolyline::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    pMode->rawGeometry()->pline(*this);
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbPolyline::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    return GiveExtents(ExtentsOfShape(CPlinePrimitive{m_arVertices, m_bClosed}), extents);
}

Acad::ErrorStatus AcDbPolyline::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    const std::optional<CPlaneTransform> plane = PlaneTransform(xform);
    if (!plane) return Acad::eNotApplicable;
    TransformVertices(m_arVertices, xform, *plane);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subExplode(AcDbVoidPtrArray& entitySet) const {
    assertReadEnabled();
    const std::size_t count = m_arVertices.size();
    if (count < 2) return Acad::eNotApplicable;
    for (std::size_t i = 0; i < (m_bClosed ? count : count - 1); ++i) {
        std::unique_ptr<AcDbEntity> pSegment = Segment(m_arVertices[i], m_arVertices[(i + 1) % count]);
        pSegment->setPropertiesFrom(this);
        entitySet.append(pSegment.release());
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                                 AcDbIntArray&) const {
    assertReadEnabled();
    for (const CPolylineVertex& vertex : m_arVertices)
        gripPoints.append({vertex.m_pt.x, vertex.m_pt.y, 0.0});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled();
    for (const int index : indices) {
        if (index < 0 || index >= static_cast<int>(m_arVertices.size())) continue;
        AcGePoint2d& point = m_arVertices[static_cast<std::size_t>(index)].m_pt;
        point.set(point.x + offset.x, point.y + offset.y);
    }
    return Acad::eOk;
}
