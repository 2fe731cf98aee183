#include "host/plot/polyline_shape.h"

#include "tests/host/plot/plot_fixture.h"

#include <limits>

namespace {

double AreaOf(const QPainterPath& path) {
    double dArea = 0.0;
    for (const QPolygonF& polygon : path.toFillPolygons())
        for (qsizetype i = 0; i + 1 < polygon.size(); ++i)
            dArea += (polygon[i].x() * polygon[i + 1].y() - polygon[i + 1].x() * polygon[i].y()) / 2.0;
    return dArea;
}

} // namespace

TEST(ShapeOf, AThinPolylineIsOneLine) {
    const CPolylineShape shape = ShapeOf({Vertex(0, 0), Vertex(10, 0), Vertex(10, 5, 0, 0, 0)}, false, {});
    EXPECT_TRUE(shape.m_wide.isEmpty());
    ASSERT_EQ(shape.m_thin.elementCount(), 3);
    EXPECT_DOUBLE_EQ(shape.m_thin.length(), 15.0);
}

TEST(ShapeOf, AClosedOneReturnsToItsStart) {
    const CPolylineShape shape = ShapeOf({Vertex(0, 0), Vertex(10, 0), Vertex(10, 5)}, true, {});
    EXPECT_EQ(shape.m_thin.currentPosition(), QPointF(0, 0));
}

TEST(ShapeOf, AnArrowIsATriangle) {
    const CPolylineShape shape = ShapeOf({Vertex(0, 0, 0, 1.0, 0.0), Vertex(3, 0)}, false, {});
    EXPECT_TRUE(shape.m_thin.isEmpty());
    EXPECT_NEAR(AreaOf(shape.m_wide), 1.5, 1e-12);
    EXPECT_EQ(shape.m_wide.boundingRect(), QRectF(0, -0.5, 3, 1));
    EXPECT_TRUE(shape.m_wide.contains(QPointF(1.5, 0.2)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(1.5, 0.3)));
}

TEST(ShapeOf, ADotIsAFullDisc) {
    const CPlinePrimitive dot = Dot(7.0, 9.0);
    const CPolylineShape shape = ShapeOf(dot.m_arVertices, true, {});
    for (int nAngle = 0; nAngle < 360; nAngle += 15)
        for (const double dRadius : {0.0, 0.1, 0.25, 0.4, 0.49}) {
            const double dAngle = nAngle * 3.14159265358979 / 180.0;
            EXPECT_TRUE(shape.m_wide.contains(
                QPointF(7.0 + dRadius * std::cos(dAngle), 9.0 + dRadius * std::sin(dAngle))))
                << nAngle << ' ' << dRadius;
        }
    EXPECT_NEAR(shape.m_wide.boundingRect().width(), 1.0, 0.005);
    EXPECT_NEAR(shape.m_wide.boundingRect().height(), 1.0, 0.005);
}

TEST(ShapeOf, ADotNeedsFewPoints) {
    EXPECT_LE(ShapeOf(Dot(7.0, 9.0).m_arVertices, true, {}).m_wide.elementCount(), 20);
}

TEST(ShapeOf, ABulgedPieceOfOneWidthIsABandTurnedLikeTheOthers) {
    for (const double dBulge : {1.0, -1.0}) { // half circles below and above the chord
        const CPolylineShape shape =
            ShapeOf({Vertex(0, 0, dBulge, 2.0, 2.0), Vertex(20, 0), Vertex(40, 0, 0, 2, 2)}, false, {});
        EXPECT_NEAR(AreaOf(shape.m_wide), 62.8, 2.0) << dBulge; // in coarse polygons
        for (const double dRadius : {9.1, 10.0, 10.9})
            EXPECT_TRUE(shape.m_wide.contains(QPointF(10.0, -dBulge * dRadius))) << dBulge;
        EXPECT_FALSE(shape.m_wide.contains(QPointF(10.0, -dBulge * 8.9)));
        EXPECT_FALSE(shape.m_wide.contains(QPointF(10.0, -dBulge * 11.1)));
        EXPECT_FALSE(shape.m_wide.contains(QPointF(10.0, dBulge * 10.0)));
    }
}

TEST(ShapeOf, CutsAWideArcByItsDashes) {
    const double dQuarter = 3.14159265358979 * 5.0; // of a circle of radius 10
    const CPolylineShape shape =
        ShapeOf({Vertex(0, 0, 1.0, 2.0, 2.0), Vertex(20, 0)}, false, CDashes{{dQuarter, 100.0}, 0.0});
    EXPECT_TRUE(shape.m_wide.contains(QPointF(3.0, -7.0)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(17.0, -7.0)));
}

TEST(ShapeOf, ABulgedPieceCanTaper) {
    const CPolylineShape shape =
        ShapeOf({Vertex(0, 0, 1.0, 2.0, 0.0), Vertex(20, 0)}, false, {}); // half circle below the chord
    EXPECT_TRUE(shape.m_wide.contains(QPointF(0.9, -0.1)));
    EXPECT_TRUE(shape.m_wide.contains(QPointF(10.0, -10.4)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(10.0, -10.6)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(19.5, -0.1)));
}

TEST(ShapeOf, WidePiecesMeetInAMitredCorner) {
    const CPolylineShape shape =
        ShapeOf({Vertex(0, 0, 0, 1, 1), Vertex(10, 0, 0, 1, 1), Vertex(10, 10, 0, 1, 1)}, false, {});
    EXPECT_TRUE(shape.m_wide.contains(QPointF(10.45, -0.45)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(-0.1, 0.0))); // ends are flat
    EXPECT_EQ(shape.m_wide.boundingRect(), QRectF(0, -0.5, 10.5, 10.5));
}

TEST(ShapeOf, ASharpCornerIsCutOff) {
    const CPolylineShape shape =
        ShapeOf({Vertex(0, 0, 0, 1, 1), Vertex(10, 0, 0, 1, 1), Vertex(0, 0.1, 0, 1, 1)}, false, {});
    EXPECT_LT(shape.m_wide.boundingRect().right(), 10.1);
}

TEST(ShapeOf, CutsAWidePieceByItsDashes) {
    const CPolylineShape shape =
        ShapeOf({Vertex(0, 0, 0, 1, 1), Vertex(10, 0)}, false, CDashes{{2.0, 1.0}, 0.0});
    EXPECT_NEAR(AreaOf(shape.m_wide), 7.0, 1e-9); // 2 + 2 + 2 + 1
    EXPECT_TRUE(shape.m_wide.contains(QPointF(1.0, 0.0)));
    EXPECT_FALSE(shape.m_wide.contains(QPointF(2.5, 0.0)));
}

TEST(ShapeOf, LeavesOutPiecesWithAValueThatIsNoNumber) {
    const double dNan = std::numeric_limits<double>::quiet_NaN();
    const double dInf = std::numeric_limits<double>::infinity();
    const CPolylineShape broken =
        ShapeOf({Vertex(0, 0), Vertex(1, 0), Vertex(dNan, 0), Vertex(5, 0), Vertex(6, 0)}, false, {});
    EXPECT_DOUBLE_EQ(broken.m_thin.length(), 2.0);
    EXPECT_EQ(broken.m_thin.elementCount(), 4); // two lines, not one across the hole
    for (const CPolylineVertex& bad :
         {Vertex(dInf, 0), Vertex(0, -dInf), Vertex(0, 0, dNan), Vertex(0, 0, 0, dNan, 1),
          Vertex(0, 0, 0, 1, dInf), Vertex(0, 0, 1e300)}) {
        const CPolylineShape shape = ShapeOf({bad, Vertex(9, 9)}, false, {});
        EXPECT_TRUE(shape.m_thin.isEmpty());
        EXPECT_TRUE(shape.m_wide.isEmpty());
    }
}

TEST(ShapeOf, IsEmptyForFewerThanTwoPlaces) {
    EXPECT_TRUE(ShapeOf({}, true, {}).m_thin.isEmpty());
    EXPECT_TRUE(ShapeOf({Vertex(1, 1)}, true, {}).m_thin.isEmpty());
    EXPECT_TRUE(ShapeOf({Vertex(1, 1), Vertex(1, 1)}, false, {}).m_thin.isEmpty());
}
