#pragma once
// What an entity drew, as plain values: the form that plotting, picking, extents and dumps walk.

#include "platform/acad/adesk.h"
#include "platform/acad/geometry.h"
#include "platform/acad/nurbs_curve.h"

#include <string>
#include <variant>
#include <vector>

/// One vertex of a two-dimensional polyline. A width not set reads -1 and draws a thin line.
struct CPolylineVertex {
    AcGePoint2d m_pt;
    double m_dBulge = 0.0; ///< tangent of a quarter of the arc's angle to the next vertex; 0 is straight
    double m_dStartWidth = -1.0, m_dEndWidth = -1.0;
};

struct CPolylinePrimitive {
    std::vector<AcGePoint3d> m_arPoints;
};

/// Half of a width; one that is not set or no number draws a thin line.
double HalfWidth(double width);

struct CPlinePrimitive {
    std::vector<CPolylineVertex> m_arVertices;
    bool m_bClosed = false;

    /// The number of segments; each runs from the vertex of its number to the next one.
    std::size_t SegmentCount() const;
    const CPolylineVertex& NextVertex(std::size_t i) const {
        return m_arVertices[(i + 1) % m_arVertices.size()];
    }
};

struct CArcPrimitive {
    AcGePoint3d m_ptCenter;
    double m_dRadius = 0.0;
    AcGeVector3d m_vecNormal, m_vecStart;
    double m_dSweep = 0.0;
};

/// An arc's circle as two vectors: the point at an angle is center + start * cos + side * sin.
struct CArcFrame {
    AcGePoint3d m_ptCenter;
    AcGeVector3d m_vecStart, m_vecSide;

    explicit CArcFrame(const CArcPrimitive& arc);
    AcGePoint3d At(double angle) const; ///< radians from the arc's start
};

struct CTextPrimitive {
    AcGePoint3d m_ptPosition;
    AcGeVector3d m_vecNormal, m_vecDirection;
    std::string m_strText; ///< GBK
    int m_nLength = -1;    ///< characters shown, from the first; -1 all
    double m_dHeight = 1.0, m_dXScale = 1.0, m_dOblique = 0.0, m_dTracking = 100.0;
    std::string m_strFont;    ///< GBK; the style's own font name, before any mapping
    std::string m_strBigFont; ///< GBK; the big font file of a shape-font style, else empty
};

struct CSplinePrimitive {
    std::vector<AcGePoint3d> m_arFitPoints; ///< as given, equal neighbours too
    int m_nOrder = 4;
    double m_dFitTolerance = 0.0;
    CNurbs m_nurbs = {}; ///< the curve itself where there are no fit points

    std::vector<CBezier> Pieces() const; ///< the curve as it is painted
};

using CShape =
    std::variant<CPolylinePrimitive, CPlinePrimitive, CArcPrimitive, CTextPrimitive, CSplinePrimitive>;

struct CPrimitive {
    Adesk::UInt16 m_nColor = 256;
    std::string m_strLinetype = "ByLayer"; ///< empty for a null line type
    Adesk::GsMarker m_nMarker = 0;
    CShape m_shape;
};

using CDisplayList = std::vector<CPrimitive>;

/// The box of all primitives; line widths count, coordinates that are no finite number don't.
AcDbExtents ExtentsOf(const CDisplayList& list);
AcDbExtents ExtentsOfShape(const CShape& shape); ///< of one alone

/// True when the picture passes within distance (drawing units) of the point, seen from above. A wide line
/// fills its width, a text its rectangle.
bool PassesNear(const CDisplayList& list, const AcGePoint3d& point, double distance);

/// True when some of the picture lies in the box of two corners, edges included, seen from above. Line widths
/// don't count; a text fills its rectangle.
bool PassesThrough(const CDisplayList& list, const AcGePoint3d& corner, const AcGePoint3d& opposite);
/// True when the picture shows something and all of it lies in the box, edges included, seen from above.
bool LiesWithin(const CDisplayList& list, const AcGePoint3d& corner, const AcGePoint3d& opposite);
