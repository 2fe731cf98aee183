#pragma once
// Drawing through a transformation, as a block reference draws what its block holds.

#include "platform/acad/gi_world_draw.h"

/// A world-draw context that hands everything on to another one, transformed. What the primitives of that one
/// cannot show (a circle that becomes an ellipse) comes out as a polyline of short chords.
class CTransformedDraw final : public AcGiWorldDraw, private AcGiGeometry {
public:
    CTransformedDraw(AcGiWorldDraw& outer, const AcGeMatrix3d& xform)
        : m_outer(outer)
        , m_xform(xform) {}

    Adesk::Boolean isDragging() const override { return m_outer.isDragging(); }
    AcGiGeometry* rawGeometry() const override { return const_cast<CTransformedDraw*>(this); }
    AcGiSubEntityTraits& subEntityTraits() const override { return m_outer.subEntityTraits(); }

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

    AcGiWorldDraw& m_outer;
    AcGeMatrix3d m_xform;
};
