#pragma once
// What an entity draws into: geometry primitives and the traits they carry.

#include "platform/acad/db_object_id.h"
#include "platform/acad/display_list.h"
#include "platform/acad/geometry.h"
#include "platform/acad/gi_text_style.h"
#include "platform/acad/rx_object.h"

class AcDbPolyline;
class AcDbSpline;

enum AcGiArcType { kAcGiArcSimple = 0, kAcGiArcSector = 1, kAcGiArcChord = 2 };

/// Traits hold for the primitives that follow, until set again.
class AcGiSubEntityTraits {
public:
    virtual ~AcGiSubEntityTraits() = default;
    virtual void setColor(Adesk::UInt16 colorIndex) = 0;
    virtual void setLineType(AcDbObjectId idLinetype) = 0; ///< a null id draws continuous
    virtual void setSelectionMarker(Adesk::GsMarker marker) = 0;
    virtual Adesk::UInt16 color() const = 0;
};

/// Primitives. Each returns whether drawing should stop (always false here).
class AcGiGeometry {
public:
    virtual ~AcGiGeometry() = default;
    virtual Adesk::Boolean polyline(Adesk::UInt32 nbPoints, const AcGePoint3d* pVertices,
                                    const AcGeVector3d* pNormal = nullptr, Adesk::GsMarker marker = -1) = 0;
    /// The polyline with its widths and bulges, from a vertex on; numSegs 0 means all.
    virtual Adesk::Boolean pline(const AcDbPolyline& polyline, Adesk::UInt32 fromIndex = 0,
                                 Adesk::UInt32 numSegs = 0) = 0;
    /// An arc from startVector through sweepAngle (radians, counter-clockwise seen against the normal).
    virtual Adesk::Boolean circularArc(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                                       const AcGeVector3d& startVector, double sweepAngle,
                                       AcGiArcType arcType = kAcGiArcSimple) = 0;
    /// length characters of the text (-1: all) from position along direction.
    virtual Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                const AcGeVector3d& direction, const ACHAR* text, Adesk::Int32 length,
                                Adesk::Boolean raw, const AcGiTextStyle& textStyle) = 0;
    /// A spline through its fit points, or by its control points where it has none.
    virtual Adesk::Boolean spline(const AcDbSpline& spline) = 0;
    /// What was drawn before, with the traits that it had; those set now stay as they are.
    virtual Adesk::Boolean Picture(const CDisplayList& list) = 0;
};

/// The context of one drawing of one entity.
class AcGiWorldDraw {
public:
    virtual ~AcGiWorldDraw() = default;
    virtual Adesk::Boolean isDragging() const = 0; ///< a drag shows a rough, quick form
    virtual AcGiGeometry* rawGeometry() const = 0;
    virtual AcGiSubEntityTraits& subEntityTraits() const = 0;
};
