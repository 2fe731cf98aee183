#include "platform/acad/display_recorder.h"

#include <algorithm>

#include "platform/acad/db_database.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/windows/code_page.h"

CDisplayRecorder::CDisplayRecorder(const AcDbEntity& entity, bool bDragging)
    : m_bDragging(bDragging) {
    m_traits.m_nColor = entity.colorIndex();
    m_traits.m_strLinetype = entity.LinetypeName();
}

Adesk::Boolean CDisplayRecorder::Add(CShape shape) {
    CPrimitive& primitive = m_list.emplace_back();
    primitive.m_nColor = m_traits.m_nColor;
    primitive.m_strLinetype = m_traits.m_strLinetype;
    primitive.m_nMarker = m_traits.m_nMarker;
    primitive.m_shape = std::move(shape);
    return Adesk::kFalse;
}

Adesk::Boolean CDisplayRecorder::polyline(Adesk::UInt32 nbPoints, const AcGePoint3d* pVertices,
                                          const AcGeVector3d*, Adesk::GsMarker marker) {
    CPolylinePrimitive shape;
    if (pVertices) shape.m_arPoints.assign(pVertices, pVertices + nbPoints);
    Add(std::move(shape));
    if (marker >= 0) m_list.back().m_nMarker = marker; // for this primitive alone
    return Adesk::kFalse;
}

Adesk::Boolean CDisplayRecorder::pline(const AcDbPolyline& polyline, Adesk::UInt32 fromIndex,
                                       Adesk::UInt32 numSegs) {
    const std::vector<CPolylineVertex>& all = polyline.Vertices();
    if (fromIndex == 0 && numSegs == 0) return Add(CPlinePrimitive{all, polyline.isClosed()});
    CPlinePrimitive shape; // a part is open; on a closed polyline it may run over the first vertex
    const std::size_t count = all.size();
    const std::size_t last = polyline.isClosed() ? count : std::max<std::size_t>(count, 1) - 1;
    const std::size_t end = numSegs ? std::min<std::size_t>(last, std::size_t{fromIndex} + numSegs) : last;
    for (std::size_t i = fromIndex; i <= end && i - fromIndex <= count && count; ++i)
        shape.m_arVertices.push_back(all[i % count]);
    return Add(std::move(shape));
}

Adesk::Boolean CDisplayRecorder::circularArc(const AcGePoint3d& center, double radius,
                                             const AcGeVector3d& normal, const AcGeVector3d& startVector,
                                             double sweepAngle, AcGiArcType) {
    return Add(CArcPrimitive{center, radius, normal, startVector, sweepAngle});
}

Adesk::Boolean CDisplayRecorder::text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                      const AcGeVector3d& direction, const ACHAR* text, Adesk::Int32 length,
                                      Adesk::Boolean, const AcGiTextStyle& textStyle) {
    CTextPrimitive shape;
    shape.m_ptPosition = position;
    shape.m_vecNormal = normal;
    shape.m_vecDirection = direction;
    shape.m_strText = GbkFromWide(text ? text : L"");
    shape.m_nLength = length;
    shape.m_dHeight = textStyle.textSize();
    shape.m_dXScale = textStyle.xScale();
    shape.m_dOblique = textStyle.obliquingAngle();
    shape.m_dTracking = textStyle.trackingPercent();
    shape.m_strFont = GbkFromWide(textStyle.fileName());
    shape.m_strBigFont = GbkFromWide(textStyle.bigFontFileName());
    return Add(std::move(shape));
}

Adesk::Boolean CDisplayRecorder::spline(const AcDbSpline& spline) {
    return Add(spline.Primitive());
}

Adesk::Boolean CDisplayRecorder::Picture(const CDisplayList& list) {
    m_list.insert(m_list.end(), list.begin(), list.end());
    return Adesk::kFalse;
}

void CDisplayRecorder::setLineType(AcDbObjectId idLinetype) {
    // The name at once: the id may belong to a temporary drawing that is gone when the list is read.
    m_traits.m_strLinetype = SymbolName(idLinetype);
}

CDisplayList DrawEntity(AcDbEntity& entity, bool bDragging) {
    CDisplayRecorder recorder(entity, bDragging);
    entity.worldDraw(&recorder);
    CDisplayList list = recorder.Take();
    if (!bDragging) entity.SetPicture(std::make_shared<const CDisplayList>(list));
    return list;
}
