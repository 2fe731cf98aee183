#include "platform/acad/display_transform.h"

#include "platform/acad/bulge_arc.h"

#include <numbers>

namespace {

constexpr int g_nChordsOfTurn = 128;
constexpr double g_dTurn = 2.0 * std::numbers::pi;

int ChordsOf(double dSweep) {
    const double chords = std::ceil(std::fabs(dSweep) / g_dTurn * g_nChordsOfTurn);
    return chords >= 1.0 && chords <= g_nChordsOfTurn ? static_cast<int>(chords) : g_nChordsOfTurn;
}

std::vector<AcGePoint3d> Images(std::vector<AcGePoint3d> arPoints, const AcGeMatrix3d& xform) {
    for (AcGePoint3d& point : arPoints)
        point.transformBy(xform);
    return arPoints;
}

/// A straight piece from a point on, with the part of the vertex's widths from one place (0 to 1) to another.
CPolylineVertex Piece(const CPolylineVertex& vertex, const AcGePoint2d& at, double dFrom, double dTo) {
    const double dMore = vertex.m_dEndWidth - vertex.m_dStartWidth;
    return {at, 0.0, vertex.m_dStartWidth + dMore * dFrom, vertex.m_dStartWidth + dMore * dTo};
}

/// The polyline with chords for its arcs.
CPlinePrimitive Straightened(const CPlinePrimitive& shape) {
    CPlinePrimitive straight;
    straight.m_bClosed = shape.m_bClosed;
    const std::size_t count = shape.m_arVertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        const CPolylineVertex& from = shape.m_arVertices[i];
        const CPolylineVertex& to = shape.m_arVertices[(i + 1) % count];
        const bool bEnd = i + 1 == count && !shape.m_bClosed;
        const auto arc = bEnd ? std::nullopt : ArcOfBulge(from.m_pt, to.m_pt, from.m_dBulge);
        const int chords = arc ? ChordsOf(arc->m_dSweep) : 1;
        straight.m_arVertices.push_back(Piece(from, from.m_pt, 0.0, 1.0 / chords));
        for (int chord = 1; chord < chords; ++chord) {
            const double place = static_cast<double>(chord) / chords;
            straight.m_arVertices.push_back(Piece(from, arc->At(place), place, place + 1.0 / chords));
        }
    }
    return straight;
}

/// What stands for an uneven transformation where there are only straight pieces: its widths grow by the mean
/// of both axes.
CPlaneTransform Mean(const AcGeMatrix3d& xform) {
    AcGeVector3d x = AcGeVector3d::kXAxis, y = AcGeVector3d::kYAxis;
    CPlaneTransform mean;
    mean.m_dScale = std::sqrt(x.transformBy(xform).length() * y.transformBy(xform).length());
    return mean;
}

struct CImage {
    const AcGeMatrix3d& m_xform;

    CShape operator()(const CPolylinePrimitive& shape) const {
        return CPolylinePrimitive{Images(shape.m_arPoints, m_xform)};
    }

    CShape operator()(const CPlinePrimitive& shape) const {
        const std::optional<CPlaneTransform> plane = PlaneTransform(m_xform);
        CPlinePrimitive image = plane ? shape : Straightened(shape);
        TransformVertices(image.m_arVertices, m_xform, plane ? *plane : Mean(m_xform));
        return image;
    }

    CShape operator()(const CArcPrimitive& shape) const {
        const CArcFrame frame(shape);
        AcGeVector3d start = frame.m_vecStart, side = frame.m_vecSide;
        start.transformBy(m_xform);
        side.transformBy(m_xform);
        const double dRadius = start.length(), dTolerance = 1e-9 * dRadius;
        if (std::fabs(side.length() - dRadius) <= dTolerance &&
            std::fabs(start.dotProduct(side)) <= dTolerance * dRadius)
            return CArcPrimitive{AcGePoint3d(shape.m_ptCenter).transformBy(m_xform), dRadius,
                                 start.crossProduct(side).normal(), start, shape.m_dSweep};
        CPolylinePrimitive ellipse;
        const int chords = ChordsOf(shape.m_dSweep);
        for (int i = 0; i <= chords; ++i)
            ellipse.m_arPoints.push_back(frame.At(shape.m_dSweep * i / chords).transformBy(m_xform));
        return ellipse;
    }

    CShape operator()(const CTextPrimitive& shape) const {
        AcGeVector3d along = shape.m_vecDirection.normal();
        AcGeVector3d up = shape.m_vecNormal.crossProduct(along).normal();
        along.transformBy(m_xform);
        up.transformBy(m_xform);
        CTextPrimitive image = shape;
        image.m_ptPosition.transformBy(m_xform);
        image.m_vecDirection = along.normal();
        image.m_vecNormal = along.crossProduct(up).normal();
        image.m_dHeight *= up.length();
        if (!up.isZeroLength()) image.m_dXScale *= along.length() / up.length();
        return image;
    }

    CShape operator()(const CSplinePrimitive& shape) const {
        CSplinePrimitive image = shape;
        image.m_arFitPoints = Images(shape.m_arFitPoints, m_xform);
        image.m_nurbs.m_arControlPoints = Images(shape.m_nurbs.m_arControlPoints, m_xform);
        return image;
    }
};

} // namespace

CDisplayList Transformed(const CDisplayList& list, const AcGeMatrix3d& xform) {
    CDisplayList images = list;
    for (CPrimitive& primitive : images)
        primitive.m_shape = std::visit(CImage{xform}, primitive.m_shape);
    return images;
}

void TransformVertices(std::vector<CPolylineVertex>& arVertices, const AcGeMatrix3d& xform,
                       const CPlaneTransform& plane) {
    for (CPolylineVertex& vertex : arVertices) {
        const AcGePoint3d moved = AcGePoint3d(vertex.m_pt.x, vertex.m_pt.y, 0.0).transformBy(xform);
        vertex.m_pt.set(moved.x, moved.y);
        if (plane.m_bMirrored) vertex.m_dBulge = -vertex.m_dBulge;
        if (vertex.m_dStartWidth > 0.0) vertex.m_dStartWidth *= plane.m_dScale;
        if (vertex.m_dEndWidth > 0.0) vertex.m_dEndWidth *= plane.m_dScale;
    }
}
