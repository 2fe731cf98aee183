#include "host/console/dump_entities.h"

#include "host/console/json_values.h"
#include "platform/acad/db_spline.h"

#include <gtest/gtest.h>

TEST(JsonEntity, OfASplineHasItsFitPointsAndTheCurveThroughThem) {
    AcGePoint3dArray fit;
    for (const AcGePoint3d& point :
         {AcGePoint3d(0.0, 0.0, 0.0), AcGePoint3d(3.0, 4.0, 0.0), AcGePoint3d(6.0, 0.0, 0.0)})
        fit.append(point);
    const CJson json = JsonEntity(AcDbSpline(fit));
    EXPECT_EQ(json["fitPoints"].dump(), "[[0.0,0.0,0.0],[3.0,4.0,0.0],[6.0,0.0,0.0]]");
    EXPECT_EQ(json["order"], 4);
    EXPECT_EQ(json["fitTolerance"], 0.0);
    // Two pieces of chord 5; with free ends the second derivative there is 0, so the second control point
    // lies a third of the piece along the end tangent, whose slope is 1.5 times that of the chord.
    EXPECT_EQ(json["knots"].dump(), "[0.0,0.0,0.0,0.0,5.0,10.0,10.0,10.0,10.0]");
    ASSERT_EQ(json["controlPoints"].size(), 5U);
    EXPECT_EQ(json["controlPoints"][0].dump(), "[0.0,0.0,0.0]");
    EXPECT_NEAR(json["controlPoints"][1][0].get<double>(), 1.0, 1e-12);
    EXPECT_NEAR(json["controlPoints"][1][1].get<double>(), 2.0, 1e-12);
    EXPECT_EQ(json["controlPoints"][4].dump(), "[6.0,0.0,0.0]");
}

TEST(JsonEntity, OfASplineByControlPointsHasNoFitPoints) {
    AcGePoint3dArray points;
    AcGeDoubleArray knots, weights;
    for (int i = 0; i < 4; i++)
        points.append(AcGePoint3d(1.0 * i, i % 2, 0.0));
    for (const double dKnot : {0.0, 0.0, 0.0, 0.0, 1.0, 1.0, 1.0, 1.0})
        knots.append(dKnot);
    const CJson json =
        JsonEntity(AcDbSpline(3, Adesk::kFalse, Adesk::kFalse, Adesk::kFalse, points, knots, weights));
    EXPECT_TRUE(json["fitPoints"].empty());
    EXPECT_EQ(json["controlPoints"].dump(), "[[0.0,0.0,0.0],[1.0,1.0,0.0],[2.0,0.0,0.0],[3.0,1.0,0.0]]");
    EXPECT_EQ(json["knots"].dump(), "[0.0,0.0,0.0,0.0,1.0,1.0,1.0,1.0]");
}
