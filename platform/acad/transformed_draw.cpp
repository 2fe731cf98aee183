#include "platform/acad/transformed_draw.h"

#include "platform/acad/bulge_arc.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/free_copy.h"

#include <numbers>

namespace {

constexpr int g_nChordsOfTurn = 128;
constexpr double g_dTurn = 2.0 * std::numbers::pi;

int ChordsOf(double dSweep) {
    const double chords = std::ceil(std::fabs(dSweep) / g_dTurn * g_nChordsOfTurn);
    return chords >= 1.0 && chords <= g_nChordsOfTurn ? static_cast<int>(chords) : g_nChordsOfTurn;
}

/// A straight piece from the vertex on, with the part of its widths from one place (0 to 1) to another.
CPolylineVertex Piece(const CPolylineVertex& vertex, const AcGePoint2d& at, double dFrom, double dTo) {
    CPolylineVertex piece = vertex;
    piece.m_pt = at;
    piece.m_dBulge = 0.0;
    const double more = vertex.m_dEndWidth - vertex.m_dStartWidth;
    piece.m_dStartWidth = vertex.m_dStartWidth + more * dFrom;
    piece.m_dEndWidth = vertex.m_dStartWidth + more * dTo;
    return piece;
}

/// The polyline with chords for its arcs.
CPlinePrimitive Straightened(const CPlinePrimitive& shape) {
    CPlinePrimitive straight;
    straight.m_bClosed = shape.m_bClosed;
    const std::size_t count = shape.m_arVertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        const CPolylineVertex& from = shape.m_arVertices[i];
        const bool bLast = i + 1 == count && !shape.m_bClosed;
        const auto arc = bLast
                             ? std::nullopt
                             : ArcOfBulge(from.m_pt, shape.m_arVertices[(i + 1) % count].m_pt, from.m_dBulge);
        const int chords = arc ? ChordsOf(arc->m_dSweep) : 1;
        straight.m_arVertices.push_back(Piece(from, from.m_pt, 0.0, 1.0 / chords));
        for (int chord = 1; chord < chords; ++chord) {
            const double place = static_cast<double>(chord) / chords;
            const double angle = arc->m_dStart + arc->m_dSweep * place;
            const AcGePoint2d at(arc->m_ptCenter.x + arc->m_dRadius * std::cos(angle),
                                 arc->m_ptCenter.y + arc->m_dRadius * std::sin(angle));
            straight.m_arVertices.push_back(Piece(from, at, place, place + 1.0 / chords));
        }
    }
    return straight;
}

void Fill(AcDbPolyline& polyline, const CPlinePrimitive& shape) {
    for (const CPolylineVertex& vertex : shape.m_arVertices)
        polyline.addVertexAt(polyline.numVerts(), vertex.m_pt, vertex.m_dBulge, vertex.m_dStartWidth,
                             vertex.m_dEndWidth);
    polyline.setClosed(shape.m_bClosed);
}

/// The factor by which widths grow: the mean of both axes'.
double WidthFactor(const AcGeMatrix3d& xform) {
    AcGeVector3d x = AcGeVector3d::kXAxis, y = AcGeVector3d::kYAxis;
    return std::sqrt(x.transformBy(xform).length() * y.transformBy(xform).length());
}

void TransformUnevenly(CPlinePrimitive& shape, const AcGeMatrix3d& xform) {
    shape = Straightened(shape);
    const double dFactor = WidthFactor(xform);
    for (CPolylineVertex& vertex : shape.m_arVertices) {
        const AcGePoint3d image = AcGePoint3d(vertex.m_pt.x, vertex.m_pt.y, 0.0).transformBy(xform);
        vertex.m_pt.set(image.x, image.y);
        for (double* pWidth : {&vertex.m_dStartWidth, &vertex.m_dEndWidth})
            if (*pWidth > 0.0) *pWidth *= dFactor;
    }
}

} // namespace

Adesk::Boolean CTransformedDraw::polyline(Adesk::UInt32 nbPoints, const AcGePoint3d* pVertices,
                                          const AcGeVector3d* pNormal, Adesk::GsMarker marker) {
    std::vector<AcGePoint3d> arPoints;
    if (pVertices) arPoints.assign(pVertices, pVertices + nbPoints);
    for (AcGePoint3d& point : arPoints)
        point.transformBy(m_xform);
    AcGeVector3d normal = pNormal ? *pNormal : AcGeVector3d::kZAxis;
    normal.transformBy(m_xform);
    return m_outer.rawGeometry()->polyline(static_cast<Adesk::UInt32>(arPoints.size()), arPoints.data(),
                                           pNormal ? &normal : nullptr, marker);
}

Adesk::Boolean CTransformedDraw::pline(const AcDbPolyline& polyline, Adesk::UInt32 fromIndex,
                                       Adesk::UInt32 numSegs) {
    CPlinePrimitive shape = PlineShape(polyline, fromIndex, numSegs);
    AcDbPolyline image;
    Fill(image, shape);
    if (image.transformBy(m_xform) != Acad::eOk) {
        TransformUnevenly(shape, m_xform);
        image.reset(Adesk::kFalse, 0);
        Fill(image, shape);
    }
    return m_outer.rawGeometry()->pline(image);
}

Adesk::Boolean CTransformedDraw::circularArc(const AcGePoint3d& center, double radius,
                                             const AcGeVector3d& normal, const AcGeVector3d& startVector,
                                             double sweepAngle, AcGiArcType arcType) {
    const CArcFrame frame(CArcPrimitive{center, radius, normal, startVector, sweepAngle});
    AcGeVector3d start = frame.m_vecStart, side = frame.m_vecSide;
    start.transformBy(m_xform);
    side.transformBy(m_xform);
    const double dRadius = start.length(), dTolerance = 1e-9 * dRadius;
    if (std::fabs(side.length() - dRadius) <= dTolerance &&
        std::fabs(start.dotProduct(side)) <= dTolerance * dRadius)
        return m_outer.rawGeometry()->circularArc(AcGePoint3d(center).transformBy(m_xform), dRadius,
                                                  start.crossProduct(side).normal(), start, sweepAngle,
                                                  arcType);
    std::vector<AcGePoint3d> arPoints; // an ellipse
    const int chords = ChordsOf(sweepAngle);
    for (int i = 0; i <= chords; ++i)
        arPoints.push_back(frame.At(sweepAngle * i / chords));
    return polyline(static_cast<Adesk::UInt32>(arPoints.size()), arPoints.data(), nullptr, -1);
}

Adesk::Boolean CTransformedDraw::text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                      const AcGeVector3d& direction, const ACHAR* text, Adesk::Int32 length,
                                      Adesk::Boolean raw, const AcGiTextStyle& textStyle) {
    AcGeVector3d along = direction.normal(), up = normal.crossProduct(along).normal();
    along.transformBy(m_xform);
    up.transformBy(m_xform);
    AcGiTextStyle style = textStyle;
    style.setTextSize(textStyle.textSize() * up.length());
    if (!up.isZeroLength()) style.setXScale(textStyle.xScale() * along.length() / up.length());
    return m_outer.rawGeometry()->text(AcGePoint3d(position).transformBy(m_xform),
                                       along.crossProduct(up).normal(), along.normal(), text, length, raw,
                                       style);
}

Adesk::Boolean CTransformedDraw::spline(const AcDbSpline& spline) {
    const std::unique_ptr<AcDbSpline> image = FreeCopy(spline);
    image->transformBy(m_xform);
    return m_outer.rawGeometry()->spline(*image);
}
