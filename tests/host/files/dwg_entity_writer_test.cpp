#include "host/files/dwg_entity_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/db_spline.h"
#include "tests/host/files/dwg_written.h"

namespace {

/// A drawing whose entities are written one at a time.
class CEntityWriting {
public:
    CDwgRecord Write(const AcDbEntity& entity, const CDwgSequence& attributes = {}) {
        return WriteDwgEntity(entity, {}, attributes,
                              {m_database, nullptr, m_text, g_nDwgAnsi936, m_handles, m_classes});
    }
    /// The own part of an entity of the type.
    template <class Part, class File>
    Part PartOf(const AcDbEntity& entity, std::uint16_t nType, File file,
                const CDwgSequence& attributes = {}) {
        const CDwgRecord record = Write(entity, attributes);
        EXPECT_EQ(record.m_nType, nType);
        return Filed<Part>(record, [file](auto& io, auto& value) {
            CDwgEntityCommon common;
            FileEntityCommon(io, common);
            file(io, value);
        });
    }
    AcDbDatabase& Database() { return m_database; }
    const std::vector<CDwgClass>& Classes() const { return m_classes; }

private:
    AcDbDatabase m_database;
    CDrawingText m_text{g_nChinesePage};
    CDwgHandleMap m_handles{m_database};
    std::vector<CDwgClass> m_classes;
};

AcGePoint3dArray Points(std::initializer_list<AcGePoint3d> points) {
    AcGePoint3dArray array;
    for (const AcGePoint3d& pt : points)
        array.append(pt);
    return array;
}

} // namespace

TEST(WriteDwgEntity, WritesLinesAndArcs) {
    CEntityWriting writing;
    const auto line = writing.PartOf<CDwgLine>(AcDbLine({1.0, 2.0, 3.0}, {4.0, 5.0, -0.0}), g_nDwgLine,
                                               DWG_FILED(FileLine));
    EXPECT_EQ(line.m_ptStart, AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_TRUE(std::signbit(line.m_ptEnd.z));
    const auto arc =
        writing.PartOf<CDwgArc>(AcDbArc({1.0, 2.0, 3.0}, 4.0, 0.5, 1.5), g_nDwgArc, DWG_FILED(FileArc));
    EXPECT_EQ(arc.m_ptCenter, AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_EQ(arc.m_dRadius, 4.0);
    EXPECT_EQ(arc.m_dStart, 0.5);
    EXPECT_EQ(arc.m_dEnd, 1.5);
}

TEST(WriteDwgEntity, WritesPolylinesWithBulgesAndWidthsOnlyWhereThereAreAny) {
    CEntityWriting writing;
    AcDbPolyline polyline;
    polyline.addVertexAt(0, {0.0, 0.0});
    polyline.addVertexAt(1, {5.0, 0.0});
    auto part = writing.PartOf<CDwgPolyline>(polyline, g_nDwgPolyline, DWG_FILED(FilePolyline));
    EXPECT_EQ(part.m_nFlags, 0);
    EXPECT_EQ(part.m_arPoints[1].x, 5.0);
    polyline.addVertexAt(2, {5.0, 7.0}, 0.5, 1.0, 2.0);
    polyline.setClosed(Adesk::kTrue);
    part = writing.PartOf<CDwgPolyline>(polyline, g_nDwgPolyline, DWG_FILED(FilePolyline));
    EXPECT_EQ(part.m_nFlags, CDwgPolyline::s_nBulges | CDwgPolyline::s_nWidths | CDwgPolyline::s_nClosed);
    EXPECT_EQ(part.m_arBulges, (std::vector{0.0, 0.0, 0.5}));
    EXPECT_EQ(part.m_arWidths[0].m_dStart, 0.0);
    EXPECT_EQ(part.m_arWidths[2].m_dEnd, 2.0);
}

TEST(WriteDwgEntity, WritesACubicSplineByItsFitPointsAndOthersByControlPoints) {
    CEntityWriting writing;
    const AcGePoint3dArray points = Points({{0.0, 0.0, 0.0}, {1.0, 2.0, 0.0}, {3.0, 1.0, 0.0}});
    const auto fitted =
        writing.PartOf<CDwgSpline>(AcDbSpline(points, 4, 0.5), g_nDwgSpline, DWG_FILED(FileSpline));
    EXPECT_EQ(fitted.m_nForm, CDwgSpline::s_nByFitPoints);
    EXPECT_EQ(fitted.m_nDegree, 3u);
    EXPECT_EQ(fitted.m_dFitTolerance, 0.5);
    EXPECT_EQ(fitted.m_arFitPoints.size(), 3u);
    AcGeDoubleArray knots, weights;
    for (const double d : {0.0, 0.0, 0.0, 1.0, 1.0, 1.0})
        knots.append(d);
    for (const double d : {1.0, 0.5, 1.0})
        weights.append(d);
    const auto rational = writing.PartOf<CDwgSpline>(
        AcDbSpline(2, Adesk::kTrue, Adesk::kFalse, Adesk::kFalse, points, knots, weights), g_nDwgSpline,
        DWG_FILED(FileSpline));
    EXPECT_EQ(rational.m_nForm, CDwgSpline::s_nByControlPoints);
    EXPECT_EQ(rational.m_nDegree, 2u);
    EXPECT_EQ(rational.m_arKnots.size(), 6u);
    EXPECT_EQ(rational.m_arControlPoints[1].m_dWeight, 0.5);
}

TEST(WriteDwgEntity, GivesATextWithoutAStyleTheStandardOne) {
    CEntityWriting writing;
    AcDbText text({1.0, 2.0, 3.0}, L"\u56FA\u00E9", AcDbObjectId::kNull, 3.5, 0.25);
    text.setHorizontalMode(AcDb::kTextMid);
    text.setAlignmentPoint({5.0, 6.0, 3.0});
    const auto part = writing.PartOf<CDwgTextEntity>(text, g_nDwgText, DWG_FILED(FileText));
    EXPECT_EQ(part.m_hStyle, HardPointer(CStandardHandles::s_nStandardStyle));
    EXPECT_EQ(part.m_strText, "固é");
    EXPECT_EQ(part.m_dElevation, 3.0);
    EXPECT_EQ(part.m_ptAlignment.y, 6.0);
    EXPECT_EQ(part.m_nHorizontal, 4);
    EXPECT_EQ(part.m_dHeight, 3.5);
    EXPECT_EQ(part.m_dRotation, 0.25);
}

TEST(WriteDwgEntity, WritesAttributesAndTheirDefinitions) {
    CEntityWriting writing;
    AcDbAttributeDefinition definition({1.0, 2.0, 0.0}, L"value", L"HOLE_TAG", L"Which hole?");
    definition.setPreset(Adesk::kTrue);
    const auto asked = writing.PartOf<CDwgAttributeDefinitionEntity>(definition, g_nDwgAttributeDefinition,
                                                                     DWG_FILED(FileAttributeDefinition));
    EXPECT_EQ(asked.m_strTag, "HOLE_TAG");
    EXPECT_EQ(asked.m_strPrompt, "Which hole?");
    EXPECT_EQ(asked.m_nFlags, CDwgAttributeEntity::s_nPreset);
    AcDbAttribute attribute({1.0, 2.0, 0.0}, L"value", L"HOLE_TAG");
    attribute.setFieldLength(7);
    attribute.setInvisible(Adesk::kTrue);
    const auto filled =
        writing.PartOf<CDwgAttributeEntity>(attribute, g_nDwgAttribute, DWG_FILED(FileAttribute));
    EXPECT_EQ(filled.m_strText, "value");
    EXPECT_EQ(filled.m_nFieldLength, 7);
    EXPECT_EQ(filled.m_nFlags, CDwgAttributeEntity::s_nInvisible);
}

TEST(WriteDwgEntity, WritesInsertionsWithWhereTheirAttributesAre) {
    CEntityWriting writing;
    AcDbBlockReference reference({7.0, 8.0, 0.0}, writing.Database().ModelSpaceId());
    reference.setScaleFactors({2.0, 2.0, 1.0});
    const auto part =
        writing.PartOf<CDwgInsertEntity>(reference, g_nDwgInsert, DWG_FILED(FileInsert), {0x61, 0x62, 0x63});
    EXPECT_EQ(part.m_hBlock, HardPointer(CStandardHandles::s_nModelSpace));
    EXPECT_EQ(part.m_scale, AcGeScale3d(2.0, 2.0, 1.0));
    EXPECT_EQ(part.m_hFirstAttribute, SoftPointer(0x61));
    EXPECT_EQ(part.m_hLastAttribute, SoftPointer(0x62));
    EXPECT_EQ(part.m_hSequenceEnd, HardOwner(0x63));
}

TEST(WriteDwgEntity, WritesAProxyUnderTheClassThatItStandsFor) {
    CEntityWriting writing;
    AcDbProxyEntity proxy;
    proxy.SetOrigin({L"CMark", L"MARK", L"Marks", 7});
    EXPECT_EQ(writing.Write(proxy).m_nType, g_nDwgFirstClass);
    EXPECT_EQ(writing.Classes(), std::vector(1, CDwgClass{500, 7, "Marks", "CMark", "MARK", true, true}));
}
