#include "drawing/curves.h"

#include "platform/acad/db_spline.h"

namespace {
constexpr double g_dSplitTolerance = 0.001;

/// The crossings of two curves, in order along the first; false when the search failed.
bool FindCrossings(const AcGePoint3dArray& first, const AcGePoint3dArray& second,
                   AcGePoint3dArray& crossings) {
    const AcDbSpline firstCurve(first), secondCurve(second);
    return firstCurve.intersectWith(&secondCurve, AcDb::kOnBothOperands, crossings) == Acad::eOk;
}

void BothSolid(CPictureSink& sink, const AcGePoint3dArray& first, const AcGePoint3dArray& second) {
    if (first.length() > 1) sink.SolidCurve(first);
    if (second.length() > 1) sink.SolidCurve(second);
}
using CStroke = void (CPictureSink::*)(const AcGePoint3dArray&);

/// In what the rising and the falling part of a stage differ when the next stage's curve cuts them.
struct CStagePart {
    bool m_bByY;                                      // how its points are divided at the crossing
    CStroke m_pUpToCrossing, m_pBeyond, m_pUncrossed; // how its pieces are drawn
};
constexpr CStagePart g_risingPart{false, &CPictureSink::SolidCurve, &CPictureSink::DashedCurve,
                                  &CPictureSink::SolidCurve};
constexpr CStagePart g_fallingPart{true, &CPictureSink::DashedCurve, &CPictureSink::SolidCurve,
                                   &CPictureSink::DashedCurve};

int CutAgainst(CPictureSink& sink, const CStagePart& part, const AcGePoint3dArray& first,
               const AcGePoint3dArray& second, AcGePoint3dArray& carry) {
    AcGePoint3dArray crossings;
    if (!FindCrossings(first, second, crossings)) {
        BothSolid(sink, first, second);
        return 0;
    }
    if (crossings.isEmpty()) {
        (sink.*part.m_pUncrossed)(first);
        carry = second;
        return 0;
    }
    AcGePoint3dArray before, after, beforeSecond, afterSecond;
    SplitAtPoint(crossings.first(), first, part.m_bByY, before, after);
    (sink.*part.m_pUpToCrossing)(before);
    (sink.*part.m_pBeyond)(after);
    SplitAtPoint(crossings.first(), second, true, beforeSecond, afterSecond);
    sink.DashedCurve(beforeSecond);
    carry = afterSecond;
    return 1;
}
} // namespace

int SplitAtFirstDrop(const AcGePoint3dArray& points, AcGePoint3dArray& head, AcGePoint3dArray& tail) {
    const int nPoints = points.length();
    int i = 0;
    while (i < nPoints - 1 && points[i + 1].y >= points[i].y)
        head.append(points[i++]);
    if (nPoints == 0) return 2;
    head.append(points[i]);
    if (i == nPoints - 1) return 1;
    for (; i < nPoints; i++)
        tail.append(points[i]);
    return 2;
}

void SplitAtPoint(const AcGePoint3d& ptAt, const AcGePoint3dArray& points, bool bByY, AcGePoint3dArray& first,
                  AcGePoint3dArray& second) {
    const auto coordinate = [bByY](const AcGePoint3d& point) { return bByY ? point.y : point.x; };
    int i = 0;
    while (i < points.length() && coordinate(ptAt) - g_dSplitTolerance > coordinate(points[i]))
        first.append(points[i++]);
    first.append(ptAt);
    second.append(ptAt);
    for (; i < points.length(); i++)
        second.append(points[i]);
}

int DrawCrossHead(CPictureSink& sink, const AcGePoint3dArray& first, const AcGePoint3dArray& second,
                  AcGePoint3dArray& carry) {
    return CutAgainst(sink, g_risingPart, first, second, carry);
}

int DrawCrossTail(CPictureSink& sink, const AcGePoint3dArray& first, const AcGePoint3dArray& second,
                  AcGePoint3dArray& carry) {
    carry.setLogicalLength(0);
    return CutAgainst(sink, g_fallingPart, first, second, carry);
}
