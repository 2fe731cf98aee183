#include "host/desktop/view_image.h"

#include "host/console/redraw.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_text.h"
#include "tests/host/desktop/desktop_user.h"

#include <gtest/gtest.h>

namespace {

/// A drawing with lines, arcs and texts over more than the view shows.
class ViewImage : public CWindowedTest {
protected:
    ViewImage() {
        SetTextMetrics(&m_fonts);
        for (int i = 0; i < 20; ++i) {
            Add(std::make_unique<AcDbLine>(AcGePoint3d(i * 20.0, -50.0, 0.0),
                                           AcGePoint3d(200.0, i * 15.0, 0.0)));
            Add(std::make_unique<AcDbArc>(AcGePoint3d(i * 15.0, i * 10.0, 0.0), 12.0, 0.0, 4.0));
            Add(std::make_unique<AcDbText>(AcGePoint3d(i * 18.0, 100.0 - i * 7.0, 0.0), L"text",
                                           m_drawing.textstyle(), 4.0 + i));
        }
        DrawAll(m_drawing);
        m_scene.Sync(m_drawing);
    }
    ~ViewImage() override { SetTextMetrics(nullptr); }

    void Add(std::unique_ptr<AcDbEntity> pEntity) {
        const CDbOpen<AcDbBlockTableRecord> space(m_drawing.ModelSpaceId(), AcDb::kForWrite);
        AcDbObjectId id;
        ASSERT_EQ(space->appendAcDbEntity(id, pEntity.get()), Acad::eOk);
        pEntity.release()->close();
    }
    void Show(CViewImage& image) {
        image.Show({m_scene, [](const CSceneItem&) { return std::nullopt; }, ++m_nRevision}, m_frame,
                   DarkColors(), 1.0);
    }
    QImage ShownAnew() {
        CViewImage image;
        Show(image);
        return image.Image();
    }

    AcDbDatabase m_drawing;
    CFonts m_fonts{{}};
    CScene m_scene{m_fonts};
    CViewFrame m_frame{{150.0, 75.0}, 1.5, {320, 240}};
    unsigned m_nRevision = 0;
};

/// Pixels that differ by more than a trace.
int Differences(const QImage& one, const QImage& other) {
    int nDifferent = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y), b = other.pixelColor(x, y);
            const int nApart = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                         std::abs(a.blue() - b.blue())});
            nDifferent += nApart > 24 ? 1 : 0;
        }
    return nDifferent;
}

} // namespace

TEST_F(ViewImage, PanningByWholePixelsShowsWhatPaintingAnewShows) {
    CViewImage image;
    Show(image);
    const QImage before = image.Image().copy();
    for (const QPointF& step :
         {QPointF(7.0, 0.0), QPointF(-3.0, 11.0), QPointF(-40.0, -25.0), QPointF(0.0, 90.0)}) {
        m_frame.PanBy(step);
        Show(image);
        EXPECT_LE(Differences(image.Image(), ShownAnew()), 20) << step.x() << " " << step.y();
    }
    EXPECT_GT(Differences(image.Image(), before), 1000);
}

TEST_F(ViewImage, AnotherScaleOrSizeIsPaintedAnew) {
    CViewImage image;
    Show(image);
    m_frame.ZoomAt({10.0, 10.0}, 1.7);
    Show(image);
    EXPECT_EQ(image.Image(), ShownAnew());
    m_frame.m_size = {200, 300};
    Show(image);
    EXPECT_EQ(image.Image(), ShownAnew());
}

TEST_F(ViewImage, WhatIsAppendedOrErasedShowsWithoutPaintingTheRestAnew) {
    CViewImage image;
    Show(image);
    const QImage before = image.Image().copy();
    Add(std::make_unique<AcDbLine>(AcGePoint3d(50.0, 0.0, 0.0), AcGePoint3d(250.0, 10.0, 0.0)));
    DrawChanged(m_drawing);
    EXPECT_TRUE(m_scene.Sync(m_drawing));
    Show(image);
    EXPECT_GT(Differences(image.Image(), before), 100);
    EXPECT_LE(Differences(image.Image(), ShownAnew()), 20);
    CDbOpen<AcDbEntity>(m_scene.Items().back().m_id, AcDb::kForWrite)->erase();
    EXPECT_TRUE(m_scene.Sync(m_drawing));
    Show(image);
    EXPECT_LE(Differences(image.Image(), before), 20);
}

TEST_F(ViewImage, AnEntityIsShownInTheColourThatItIsGiven) {
    CViewImage image;
    const AcDbObjectId id = m_scene.Items()[30].m_id; // a line across the view
    const auto colorOf = [&](const CSceneItem& item) {
        return item.m_id == id ? std::optional(QColor(255, 0, 0)) : std::nullopt;
    };
    image.Show({m_scene, colorOf, 1}, m_frame, LightColors(), 1.0);
    int nRed = 0, nBlack = 0;
    for (int y = 0; y < image.Image().height(); ++y)
        for (int x = 0; x < image.Image().width(); ++x) {
            const QColor c = image.Image().pixelColor(x, y);
            nRed += c.red() > 200 && c.green() < 128 ? 1 : 0;
            nBlack += c.red() < 64 ? 1 : 0;
        }
    EXPECT_GT(nRed, 50);
    EXPECT_GT(nBlack, 500) << "the others keep their own";
}
