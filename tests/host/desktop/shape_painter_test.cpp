#include "host/desktop/shape_painter.h"

#include "tests/host/desktop/desktop_user.h"

#include <QtGui/QPainter>

#include <gtest/gtest.h>

namespace {

QPainterPath PathTo(const QPointF& from, const QPointF& to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

/// Shapes whose origin is the upper left corner of a view of 100 by 100 millimetres.
class ShapePainter : public CWindowedTest {
protected:
    QImage Painted(const QRectF& rect = {0.0, 0.0, 1e4, 1e4}) {
        m_frame.m_size = QSize(100, 100) * m_frame.m_dPixels;
        QImage image(m_frame.m_size, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        PaintShapes(painter, m_recorder.Take(), {0.0, 100.0}, rect, m_look);
        return image;
    }
    static int Count(const QImage& image, const QColor& color) {
        int nCount = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                nCount += image.pixelColor(x, y) == color ? 1 : 0;
        return nCount;
    }
    /// Of 80 millimetres.
    void AddLine(const QColor& color, const CDashes& dashes = {}, double dY = 50.5) {
        m_recorder.StrokePath(PathTo({10.0, dY}, {90.0, dY}), {color, THIN_LINE, dashes});
    }
    void AddText(double dEm) {
        CTextRun run;
        run.m_dEm = dEm;
        run.m_dWidth = 5.0 * dEm;
        run.m_color = Qt::red;
        for (int i = 0; i < 5; ++i)
            run.m_arGlyphs.push_back({m_fonts.Chain({}).Glyph(U'M'), i * dEm});
        run.m_toPage = QTransform::fromTranslate(20.0, 50.0);
        m_recorder.DrawText(run);
    }

    CFonts m_fonts{{}};
    CGlyphOutlines m_outlines;
    CShapeRecorder m_recorder{m_outlines};
    CViewFrame m_frame{{50.0, 50.0}, 1.0, {}};
    CViewColors m_colors = DarkColors();
    CShapeLook m_look{m_frame, m_colors};
};

} // namespace

TEST_F(ShapePainter, ThinLinesStayThinAtAnyScale) {
    for (const double dScale : {1.0, 4.0}) {
        m_frame.m_dPixels = dScale;
        AddLine(Qt::red);
        EXPECT_EQ(Count(Painted(), Qt::red), static_cast<int>(80 * dScale)) << dScale;
    }
}

TEST_F(ShapePainter, BlackOfPaperIsTheInkOfTheViewAndAGivenColourCoversAll) {
    AddLine(Qt::black);
    EXPECT_EQ(Count(Painted(), m_colors.m_ink), 80);
    m_look.m_color = QColor(Qt::green);
    AddLine(Qt::black);
    EXPECT_EQ(Count(Painted(), Qt::green), 80);
}

TEST_F(ShapePainter, DashesHaveTheirLengthUntilTheyCannotBeTold) {
    const CDashes dashes{{10.0, 10.0}, 0.0};
    AddLine(Qt::red, dashes);
    EXPECT_EQ(Count(Painted(), Qt::red), 40);
    m_frame.m_dPixels = 0.1; // two pixels a row
    AddLine(Qt::red, dashes);
    EXPECT_EQ(Count(Painted(), Qt::red), 8);
}

TEST_F(ShapePainter, WhatLiesBesideTheRectangleIsLeftOut) {
    AddLine(Qt::red);
    AddLine(Qt::blue, {}, 20.5);
    const QImage image = Painted({0.0, 40.0, 100.0, 20.0});
    EXPECT_EQ(Count(image, Qt::red), 80);
    EXPECT_EQ(Count(image, Qt::blue), 0);
}

TEST_F(ShapePainter, ATextTooSmallToBeReadIsAPaleBar) {
    m_frame.m_dPixels = 4.0;
    AddText(10.0);
    EXPECT_GT(Count(Painted(), Qt::red), 500) << "letters";
    m_frame.m_dPixels = 1.0;
    AddText(2.0);
    const QImage image = Painted();
    EXPECT_EQ(Count(image, Qt::red), 0);
    int nPale = 0;
    for (int x = 0; x < image.width(); ++x)
        nPale += image.pixelColor(x, 49) != QColor(Qt::white) ? 1 : 0;
    EXPECT_EQ(nPale, 10) << "as long as the text";
}
