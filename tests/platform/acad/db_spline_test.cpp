#include "platform/acad/db_spline.h"

#include "platform/acad/display_recorder.h"
#include "platform/acad/memory_filer.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

AcGePoint3dArray Points(std::initializer_list<AcGePoint3d> points) {
    AcGePoint3dArray array;
    for (const AcGePoint3d& point : points)
        array.append(point);
    return array;
}

} // namespace

TEST(AcDbSpline, KeepsItsPointsAsTheyWereGiven) {
    const AcDbSpline spline(Points({{0, 0, 0}, {0, 0, 0}, {5, 5, 0}}), 4, 0.0);
    EXPECT_EQ(spline.numFitPoints(), 3);
    EXPECT_EQ(spline.FitPoints().size(), 3u);
    EXPECT_EQ(spline.Order(), 4);
    EXPECT_EQ(spline.FitTolerance(), 0.0);
}

TEST(AcDbSpline, AppendsItsCrossingsInOrderAlongItself) {
    const AcDbSpline arch(Points({{0, 0, 0}, {3, 4, 0}, {6, 0, 0}}));
    const AcDbSpline line(Points({{7, 2.75, 0}, {-1, 2.75, 0}}));
    AcGePoint3dArray points = Points({{9, 9, 9}});
    ASSERT_EQ(arch.intersectWith(&line, AcDb::kOnBothOperands, points), Acad::eOk);
    ASSERT_EQ(points.length(), 3);
    EXPECT_NEAR(points[1].x, 1.5, 1e-9);
    EXPECT_NEAR(points[1].y, 2.75, 1e-9);
    EXPECT_NEAR(points[2].x, 4.5, 1e-9);
    ASSERT_EQ(line.intersectWith(&arch, AcDb::kOnBothOperands, points), Acad::eOk);
    EXPECT_NEAR(points[3].x, 4.5, 1e-9);
}

TEST(AcDbSpline, FailsToCrossWithFewerThanTwoPointsOnEitherSide) {
    const AcDbSpline line(Points({{0, 0, 0}, {4, 4, 0}})), beside(Points({{0, 9, 0}, {4, 13, 0}}));
    const AcDbSpline point(Points({{0, 0, 0}})), none, doubled(Points({{1, 1, 0}, {1, 1, 0}}));
    AcGePoint3dArray points;
    EXPECT_EQ(line.intersectWith(&beside, AcDb::kOnBothOperands, points), Acad::eOk);
    EXPECT_EQ(line.intersectWith(&point, AcDb::kOnBothOperands, points), Acad::eDegenerateGeometry);
    EXPECT_EQ(none.intersectWith(&line, AcDb::kOnBothOperands, points), Acad::eDegenerateGeometry);
    EXPECT_EQ(line.intersectWith(&doubled, AcDb::kOnBothOperands, points), Acad::eDegenerateGeometry);
    EXPECT_EQ(line.intersectWith(nullptr, AcDb::kOnBothOperands, points), Acad::eNullObjectPointer);
    EXPECT_EQ(line.intersectWith(&beside, AcDb::kExtendBoth, points), Acad::eNotImplementedYet);
    EXPECT_TRUE(points.isEmpty());
}

TEST(AcDbSpline, ExtendsOverItsBellyNotOnlyItsPoints) {
    // x(t) of the two pieces swings beyond the points; y is 6 t - 2 t^3 up to 4 in the first.
    const AcDbSpline spline(Points({{0, 0, 0}, {4, 3, 0}, {0, 6, 0}}));
    AcDbExtents extents;
    ASSERT_EQ(spline.getGeomExtents(extents), Acad::eOk);
    EXPECT_NEAR(extents.maxPoint().x, 4.0, 1e-12);
    EXPECT_NEAR(extents.maxPoint().y, 6.0, 1e-12);
    const AcDbSpline wave(Points({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}}));
    ASSERT_EQ(wave.getGeomExtents(extents), Acad::eOk);
    EXPECT_GT(extents.maxPoint().y, 1.01); // it swings over between the second and the third point
    EXPECT_LT(extents.minPoint().y, -0.01);
}

TEST(AcDbSpline, ThatIsNoCurveShowsNothing) {
    AcDbExtents extents;
    EXPECT_EQ(AcDbSpline().getGeomExtents(extents), Acad::eInvalidExtents);
    const AcDbSpline broken(Points({{0, 0, 0}, {std::numeric_limits<double>::quiet_NaN(), 1, 0}}));
    EXPECT_EQ(broken.getGeomExtents(extents), Acad::eInvalidExtents);
}

TEST(AcDbSpline, MovesAndDrawsItsPoints) {
    AcDbSpline spline(Points({{0, 0, 0}, {4, 3, 0}}));
    EXPECT_EQ(spline.transformBy(AcGeMatrix3d::translation({1, 2, 0})), Acad::eOk);
    spline.setColorIndex(2);
    const CDisplayList list = DrawEntity(spline);
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].m_nColor, 2);
    const auto& shape = std::get<CSplinePrimitive>(list[0].m_shape);
    ASSERT_EQ(shape.m_arFitPoints.size(), 2u);
    EXPECT_EQ(shape.m_arFitPoints[1], AcGePoint3d(5, 5, 0));
    EXPECT_EQ(shape.m_nOrder, 4);
}

TEST(AcDbSpline, TellsItsCurveByControlPointsAndItsFitData) {
    const AcDbSpline spline(Points({{0, 0, 0}, {3, 0, 0}}), 4, 0.5);
    int degree = 0;
    Adesk::Boolean rational = 1, closed = 1, periodic = 1, tangents = 1;
    AcGePoint3dArray points;
    AcGeDoubleArray knots, weights;
    double controlTol = 1.0, knotTol = 1.0, fitTolerance = 0.0;
    AcGeVector3d start, end;
    ASSERT_EQ(
        spline.getNurbsData(degree, rational, closed, periodic, points, knots, weights, controlTol, knotTol),
        Acad::eOk);
    EXPECT_EQ(degree, 3);
    EXPECT_FALSE(rational || closed || periodic);
    ASSERT_EQ(points.length(), 4);
    EXPECT_EQ(points[2], AcGePoint3d(2, 0, 0));
    EXPECT_EQ(knots.length(), 8);
    EXPECT_TRUE(weights.isEmpty());
    ASSERT_EQ(spline.getFitData(points, degree, fitTolerance, tangents, start, end), Acad::eOk);
    EXPECT_EQ(points.length(), 2);
    EXPECT_EQ(fitTolerance, 0.5);
    EXPECT_FALSE(tangents);
}

class AcDbSplineByControlPoints : public testing::Test {
protected:
    AcDbSplineByControlPoints() {
        for (const double knot : {0, 0, 0, 0, 1, 1, 1, 1})
            m_knots.append(knot);
    }
    AcGePoint3dArray m_points = Points({{0, 0, 0}, {0, 4, 0}, {4, 4, 0}, {4, 0, 0}});
    AcGeDoubleArray m_knots, m_weights;
};

TEST_F(AcDbSplineByControlPoints, HasNoFitDataAndShowsItsCurve) {
    AcDbSpline spline(3, Adesk::kFalse, Adesk::kTrue, Adesk::kFalse, m_points, m_knots, m_weights);
    EXPECT_FALSE(spline.hasFitData() || spline.isRational() || spline.isPeriodic());
    EXPECT_TRUE(spline.isClosed());
    EXPECT_EQ(spline.degree(), 3);
    EXPECT_EQ(spline.Order(), 4);
    AcDbExtents extents;
    ASSERT_EQ(spline.getGeomExtents(extents), Acad::eOk);
    EXPECT_NEAR(extents.maxPoint().x, 4.0, 1e-12);
    EXPECT_NEAR(extents.maxPoint().y, 3.0, 1e-12);
    EXPECT_TRUE(PassesNear(DrawEntity(spline), {2, 3.1, 0}, 0.2));
    const AcDbSpline across(Points({{2, 0, 0}, {2, 5, 0}}));
    AcGePoint3dArray crossings;
    ASSERT_EQ(spline.intersectWith(&across, AcDb::kOnBothOperands, crossings), Acad::eOk);
    ASSERT_EQ(crossings.length(), 1);
    EXPECT_NEAR(crossings[0].y, 3.0, 1e-9);
    AcGePoint3dArray points;
    int degree = 0;
    double fitTolerance = 0.0;
    Adesk::Boolean tangents = 0;
    AcGeVector3d start, end;
    EXPECT_EQ(spline.getFitData(points, degree, fitTolerance, tangents, start, end), Acad::eNotApplicable);
}

TEST_F(AcDbSplineByControlPoints, MovesByItsPointsAndFilesThem) {
    for (const double weight : {1.0, 2.0, 2.0, 1.0})
        m_weights.append(weight);
    AcDbSpline spline(3, Adesk::kTrue, Adesk::kFalse, Adesk::kTrue, m_points, m_knots, m_weights);
    spline.transformBy(AcGeMatrix3d::translation({1, 0, 0}));
    EXPECT_EQ(spline.Nurbs().m_arControlPoints[0], AcGePoint3d(1, 0, 0));
    const CDbRecord record = RecordOf(spline, AcDb::kCopyFiler);
    AcDbSpline copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(copy.Nurbs().m_arWeights, (std::vector{1.0, 2.0, 2.0, 1.0}));
    EXPECT_TRUE(copy.isPeriodic() && copy.isRational());
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
}

TEST_F(AcDbSplineByControlPoints, HasThemAsGrips) {
    AcDbSpline spline(3, Adesk::kFalse, Adesk::kFalse, Adesk::kFalse, m_points, m_knots, m_weights);
    AcDbSpline fitted(Points({{0, 0, 0}, {3, 0, 0}}));
    AcGePoint3dArray grips, fitGrips;
    AcDbIntArray osnapModes, geomIds, indices;
    spline.getGripPoints(grips, osnapModes, geomIds);
    EXPECT_EQ(grips, m_points);
    fitted.getGripPoints(fitGrips, osnapModes, geomIds);
    EXPECT_EQ(fitGrips.length(), 2);
    for (const int index : {1, 4, -1})
        indices.append(index);
    spline.moveGripPointsAt(indices, {0, 1, 0});
    fitted.moveGripPointsAt(indices, {0, 1, 0});
    EXPECT_EQ(spline.Nurbs().m_arControlPoints[1], AcGePoint3d(0, 5, 0));
    EXPECT_EQ(fitted.FitPoints()[1], AcGePoint3d(3, 1, 0));
}
