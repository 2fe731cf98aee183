#include "host/desktop/view_frame.h"

#include <gtest/gtest.h>

TEST(ViewFrame, PointsGoToTheScreenAndBack) {
    const CViewFrame frame{{100.0, 50.0}, 2.0, {400, 300}};
    EXPECT_EQ(frame.ToScreen(QPointF(100.0, 50.0)), QPointF(200.0, 150.0));
    EXPECT_EQ(frame.ToScreen(QPointF(110.0, 60.0)), QPointF(220.0, 130.0));
    EXPECT_EQ(frame.ToDrawing(QPointF(220.0, 130.0)), QPointF(110.0, 60.0));
    const CPageBox box = frame.ToDrawing(QRectF(0.0, 0.0, 400.0, 300.0));
    EXPECT_EQ(box.m_dLeft, 0.0);
    EXPECT_EQ(box.m_dBottom, -25.0);
    EXPECT_EQ(box.m_dRight, 200.0);
    EXPECT_EQ(box.m_dTop, 125.0);
}

TEST(ViewFrame, ZoomingLeavesWhatLiesThereWhereItIs) {
    CViewFrame frame{{0.0, 0.0}, 1.0, {400, 300}};
    const QPointF at(300.0, 50.0), there = frame.ToDrawing(at);
    frame.ZoomAt(at, 4.0);
    EXPECT_EQ(frame.m_dPixels, 4.0);
    EXPECT_EQ(frame.ToDrawing(at), there);
}

TEST(ViewFrame, PanningMovesTheDrawingWithTheHand) {
    CViewFrame frame{{0.0, 0.0}, 2.0, {400, 300}};
    const QPointF before = frame.ToScreen(QPointF(7.0, 3.0));
    frame.PanBy({10.0, -4.0});
    EXPECT_EQ(frame.ToScreen(QPointF(7.0, 3.0)), before + QPointF(10.0, -4.0));
}

TEST(ViewFrame, FitShowsAllOfABoxAndCentersALonePoint) {
    CViewFrame frame{{0.0, 0.0}, 1.0, {400, 300}};
    frame.Fit({1000.0, 1000.0, 1100.0, 1300.0});
    const QRectF shown = frame.ToScreen(CPageBox{1000.0, 1000.0, 1100.0, 1300.0});
    EXPECT_TRUE(QRectF(0.0, 0.0, 400.0, 300.0).contains(shown));
    EXPECT_GT(shown.height(), 280.0);
    const double dPixels = frame.m_dPixels;
    frame.Fit({5.0, 6.0, 5.0, 6.0});
    EXPECT_EQ(frame.m_dPixels, dPixels);
    EXPECT_EQ(frame.m_ptCenter, QPointF(5.0, 6.0));
}

TEST(ViewFrame, ADrawingsViewIsAsHighAsTheWindow) {
    const CViewFrame frame = FrameOf({{210.0, 148.5}, 297.0}, {800, 594});
    EXPECT_EQ(frame.m_dPixels, 2.0);
    EXPECT_EQ(ViewOf(frame).m_dHeight, 297.0);
    EXPECT_EQ(ViewOf(frame).m_ptCenter.x, 210.0);
    EXPECT_EQ(FrameOf({{0.0, 0.0}, 0.0}, {800, 594}).m_dPixels, 1.0) << "a view of no height";
}
