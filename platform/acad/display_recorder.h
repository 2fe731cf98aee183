#pragma once

#include "platform/acad/db_entity.h"
#include "platform/acad/gi_world_draw.h"

/// A world-draw context that keeps what is drawn as a display list. It begins with the traits of the entity.
class CDisplayRecorder final : public AcGiWorldDraw, private AcGiGeometry, private AcGiSubEntityTraits {
public:
    explicit CDisplayRecorder(const AcDbEntity& entity, bool bDragging = false);

    Adesk::Boolean isDragging() const override { return m_bDragging; }
    AcGiGeometry* rawGeometry() const override { return const_cast<CDisplayRecorder*>(this); }
    AcGiSubEntityTraits& subEntityTraits() const override { return *const_cast<CDisplayRecorder*>(this); }
    CDisplayList Take() { return std::move(m_list); }

private:
    Adesk::Boolean polyline(Adesk::UInt32 nbPoints, const AcGePoint3d* pVertices, const AcGeVector3d* pNormal,
                            Adesk::GsMarker marker) override;
    Adesk::Boolean pline(const AcDbPolyline& polyline, Adesk::UInt32 fromIndex,
                         Adesk::UInt32 numSegs) override;
    Adesk::Boolean circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                               const AcGeVector3d& startVector, double sweepAngle,
                               AcGiArcType arcType) override;
    Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal,
                        const AcGeVector3d& direction, const ACHAR* text, Adesk::Int32 length,
                        Adesk::Boolean raw, const AcGiTextStyle& textStyle) override;
    Adesk::Boolean spline(const AcDbSpline& spline) override;
    Adesk::Boolean Picture(const CDisplayList& list) override;
    void setColor(Adesk::UInt16 colorIndex) override { m_traits.m_nColor = colorIndex; }
    void setLineType(AcDbObjectId idLinetype) override;
    void setSelectionMarker(Adesk::GsMarker marker) override { m_traits.m_nMarker = marker; }
    Adesk::UInt16 color() const override { return m_traits.m_nColor; }
    Adesk::Boolean Add(CShape shape);

    bool m_bDragging;
    CPrimitive m_traits; // its shape is never looked at
    CDisplayList m_list;
};

/// Draws the entity once, keeps the result as its picture unless it is a drag, and returns it.
CDisplayList DrawEntity(AcDbEntity& entity, bool bDragging = false);
