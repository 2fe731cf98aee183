#include "platform/acad/display_recorder.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// Draws what it is told to.
class CScriptedEntity : public AcDbEntity {
public:
    explicit CScriptedEntity(std::function<void(AcGiWorldDraw&)> draw)
        : m_draw(std::move(draw)) {}

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override {
        m_draw(*pMode);
        return Adesk::kTrue;
    }

private:
    std::function<void(AcGiWorldDraw&)> m_draw;
};

CDisplayList Drawn(std::function<void(AcGiWorldDraw&)> draw) {
    CScriptedEntity entity(std::move(draw));
    entity.setColorIndex(5);
    return DrawEntity(entity);
}

const AcGePoint3d g_arPoints[] = {{0, 0, 0}, {1, 2, 3}};

} // namespace

TEST(DisplayRecorder, BeginsWithTheEntitysTraitsAndKeepsWhatIsSet) {
    AcDbDatabase database;
    AcDbObjectId idContinuous;
    CDbOpen<AcDbLinetypeTable>(database.linetypeTableId())->getAt(L"Continuous", idContinuous);
    const CDisplayList list = Drawn([&](AcGiWorldDraw& mode) {
        mode.rawGeometry()->polyline(2, g_arPoints);
        EXPECT_EQ(mode.subEntityTraits().color(), 5);
        mode.subEntityTraits().setColor(2);
        mode.subEntityTraits().setLineType(idContinuous);
        mode.subEntityTraits().setSelectionMarker(1);
        mode.rawGeometry()->polyline(1, g_arPoints);
        mode.subEntityTraits().setLineType(AcDbObjectId::kNull);
        EXPECT_EQ(mode.rawGeometry()->polyline(2, g_arPoints, nullptr, 7), Adesk::kFalse);
        mode.rawGeometry()->polyline(2, nullptr);
    });
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list[0].m_nColor, 5);
    EXPECT_EQ(list[0].m_strLinetype, "ByLayer");
    EXPECT_EQ(list[0].m_nMarker, 0);
    EXPECT_EQ(std::get<CPolylinePrimitive>(list[0].m_shape).m_arPoints[1].z, 3.0);
    EXPECT_EQ(list[1].m_nColor, 2);
    EXPECT_EQ(list[1].m_strLinetype, "Continuous");
    EXPECT_EQ(list[1].m_nMarker, 1);
    EXPECT_EQ(std::get<CPolylinePrimitive>(list[1].m_shape).m_arPoints.size(), 1u);
    EXPECT_EQ(list[2].m_strLinetype, "");
    EXPECT_EQ(list[2].m_nMarker, 7);
    EXPECT_EQ(list[3].m_nMarker, 1);
    EXPECT_TRUE(std::get<CPolylinePrimitive>(list[3].m_shape).m_arPoints.empty());
}

TEST(DisplayRecorder, KnowsALineTypeByNameAfterItsDrawingIsGone) {
    const CDisplayList list = Drawn([](AcGiWorldDraw& mode) {
        auto pTemporary = std::make_unique<AcDbDatabase>();
        const AcDbObjectId id = AddRecord<AcDbLinetypeTable>(pTemporary->linetypeTableId(), L"Dashed2",
                                                             new AcDbLinetypeTableRecord);
        mode.subEntityTraits().setLineType(id);
        pTemporary.reset();
        mode.rawGeometry()->polyline(2, g_arPoints);
    });
    ASSERT_EQ(list.size(), 1u);
    EXPECT_EQ(list[0].m_strLinetype, "Dashed2");
}

TEST(DisplayRecorder, DrawsATemporaryEntityWithTheTraitsAsTheyStand) {
    const CDisplayList list = Drawn([](AcGiWorldDraw& mode) {
        mode.subEntityTraits().setColor(2);
        AcGePoint3dArray points;
        points.append({0, 0, 0});
        points.append({5, 5, 0});
        AcDbSpline spline(points);
        spline.setColorIndex(4);
        spline.worldDraw(&mode);
        AcDbPolyline polyline;
        polyline.addVertexAt(0, {1, 1});
        polyline.setColorIndex(6);
        polyline.worldDraw(&mode);
        EXPECT_EQ(mode.subEntityTraits().color(), 2);
    });
    ASSERT_EQ(list.size(), 2u);
    EXPECT_EQ(list[0].m_nColor, 2);
    EXPECT_EQ(list[1].m_nColor, 2);
    EXPECT_EQ(std::get<CSplinePrimitive>(list[0].m_shape).m_arFitPoints.size(), 2u);
    EXPECT_EQ(std::get<CPlinePrimitive>(list[1].m_shape).m_arVertices.size(), 1u);
}

TEST(DisplayRecorder, KeepsArcsAndTextsAsTheyAreDrawn) {
    const CDisplayList list = Drawn([](AcGiWorldDraw& mode) {
        mode.rawGeometry()->circularArc({1, 2, 0}, 3.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 1.5);
        AcGiTextStyle style;
        style.setTextSize(2.5);
        style.setTrackingPercent(80.0);
        style.setFileName(L"仿宋_GB2312");
        style.setBigFontFileName(L"big.shx");
        mode.rawGeometry()->text({1, 1, 0}, AcGeVector3d::kZAxis, AcGeVector3d::kYAxis, L"轴向应变", 2,
                                 Adesk::kFalse, style);
        mode.rawGeometry()->text({1, 1, 0}, AcGeVector3d::kZAxis, AcGeVector3d::kYAxis, nullptr, -1,
                                 Adesk::kFalse, style);
    });
    ASSERT_EQ(list.size(), 3u);
    const auto& arc = std::get<CArcPrimitive>(list[0].m_shape);
    EXPECT_EQ(arc.m_dRadius, 3.0);
    EXPECT_EQ(arc.m_dSweep, 1.5);
    EXPECT_EQ(arc.m_vecStart, AcGeVector3d::kXAxis);
    const auto& text = std::get<CTextPrimitive>(list[1].m_shape);
    EXPECT_EQ(text.m_strText, "轴向应变");
    EXPECT_EQ(text.m_nLength, 2);
    EXPECT_EQ(text.m_dHeight, 2.5);
    EXPECT_EQ(text.m_dTracking, 80.0);
    EXPECT_EQ(text.m_strFont, "仿宋_GB2312");
    EXPECT_EQ(text.m_strBigFont, "big.shx");
    EXPECT_EQ(std::get<CTextPrimitive>(list[2].m_shape).m_strText, "");
}

TEST(DisplayRecorder, TakesAPartOfAPolyline) {
    AcDbPolyline square;
    for (const AcGePoint2d& corner : {AcGePoint2d(0, 0), {1, 0}, {1, 1}, {0, 1}})
        square.addVertexAt(square.numVerts(), corner);
    const auto xs = [&square](Adesk::UInt32 from, Adesk::UInt32 segments) {
        const CDisplayList list =
            Drawn([&](AcGiWorldDraw& mode) { mode.rawGeometry()->pline(square, from, segments); });
        std::vector<double> values;
        for (const CPolylineVertex& vertex : std::get<CPlinePrimitive>(list.at(0).m_shape).m_arVertices)
            values.push_back(vertex.m_pt.x + 10 * vertex.m_pt.y);
        return values;
    };
    EXPECT_EQ(xs(0, 0), (std::vector<double>{0, 1, 11, 10}));
    EXPECT_EQ(xs(1, 0), (std::vector<double>{1, 11, 10}));
    EXPECT_EQ(xs(1, 1), (std::vector<double>{1, 11}));
    EXPECT_EQ(xs(2, 4'000'000'000u), (std::vector<double>{11, 10}));
    EXPECT_TRUE(xs(9, 0).empty());
    square.setClosed(Adesk::kTrue);
    EXPECT_EQ(xs(2, 0), (std::vector<double>{11, 10, 0}));
}

TEST(DrawEntity, KeepsThePictureUnlessItIsADrag) {
    CSampleEntity entity;
    EXPECT_EQ(DrawEntity(entity, true).size(), 1u);
    EXPECT_EQ(entity.Picture(), nullptr);
    EXPECT_EQ(DrawEntity(entity).size(), 1u);
    ASSERT_NE(entity.Picture(), nullptr);
    EXPECT_EQ(entity.Picture()->size(), 1u);
    CScriptedEntity asking(
        [](AcGiWorldDraw& mode) { mode.subEntityTraits().setColor(mode.isDragging() ? 1 : 2); });
    const CDisplayRecorder dragging(asking, true), plain(asking);
    EXPECT_TRUE(dragging.isDragging());
    EXPECT_FALSE(plain.isDragging());
}
