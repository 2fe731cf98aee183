#include "host/files/dxf_write.h"

#include "host/files/dxf_read.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/result_buffer.h"
#include "platform/acad/rx_class.h"
#include "platform/windows/file_bytes.h"
#include "tests/host/files/drawing_contents.h"
#include "tests/host/files/dxf_audit.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

/// An entity of a class that files have no type for: a square that explodes into its sides.
class CSquare : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(CSquare)
    bool m_bExplodes = true;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw*) override { return Adesk::kTrue; }
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override {
        if (!m_bExplodes) return Acad::eNotApplicable;
        entitySet.append(new AcDbLine({0, 0, 0}, {10, 0, 0}));
        entitySet.append(new AcDbLine({10, 0, 0}, {10, 10, 0}));
        return Acad::eOk;
    }
};
ACRX_DEFINE_MEMBERS(CSquare, AcDbEntity, L"SQUARE")

namespace {

template <class T>
AcDbObjectId AddTo(AcDbObjectId idBlock, T* pEntity) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(block->appendAcDbEntity(id, pEntity), Acad::eOk);
    pEntity->close();
    return id;
}

template <class T>
AcDbObjectId Add(AcDbDatabase& drawing, T* pEntity) {
    return AddTo(drawing.ModelSpaceId(), pEntity);
}

AcDbObjectId AddTitle(AcDbDatabase& drawing) {
    AcDbObjectId idBlock;
    {
        const CDbOpen<AcDbBlockTable> table(drawing.blockTableId(), AcDb::kForWrite);
        auto* const pBlock = new AcDbBlockTableRecord;
        pBlock->setName(L"标题");
        pBlock->setOrigin({1, 2, 0});
        table->add(idBlock, pBlock);
        pBlock->close();
    }
    AddTo(idBlock, new AcDbLine({0, 0, 0}, {10, 0, 0}));
    auto* const pDefinition = new AcDbAttributeDefinition({1, 1, 0}, L"试样", L"NAME", L"Name?");
    pDefinition->setHeight(2.5);
    AddTo(idBlock, pDefinition);
    auto* const pReference = new AcDbBlockReference({100, 200, 0}, idBlock);
    pReference->setScaleFactors(AcGeScale3d(2.0));
    pReference->setRotation(1.0);
    const AcDbObjectId id = Add(drawing, pReference);
    const CDbOpen<AcDbBlockReference> reference(id, AcDb::kForWrite);
    auto* const pAttribute = new AcDbAttribute({101, 202, 0}, L"ZK1-1", L"NAME");
    pAttribute->setHeight(2.5);
    EXPECT_EQ(reference->appendAttribute(pAttribute), Acad::eOk);
    pAttribute->close();
    return id;
}

void AddCurves(AcDbDatabase& drawing) {
    Add(drawing, new AcDbLine({0.1, 0.2, 0.3}, {1.0 / 3.0, -2e-9, 0}));
    Add(drawing, new AcDbArc({10, 20, 0}, 5, 0.7, 2.1));
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, {0, 0}, 0.5);
    pPolyline->addVertexAt(1, {30, 0}, 0.0, 1.5, 2.5);
    pPolyline->addVertexAt(2, {30, 40});
    pPolyline->setClosed(true);
    Add(drawing, pPolyline);
    AcGePoint3dArray points;
    for (const double x : {0.0, 1.0, 2.0, 3.0, 3.0})
        points.append({x * 10, x * x * 3, 0});
    Add(drawing, new AcDbSpline(points));
    AcGeDoubleArray knots;
    for (const double knot : {0.0, 0.0, 0.0, 1.0, 2.0, 3.0, 3.0, 3.0})
        knots.append(knot);
    Add(drawing, new AcDbSpline(2, false, false, false, points, knots, AcGeDoubleArray()));
}

void AddTextWithStyle(AcDbDatabase& drawing) {
    AcDbObjectId idStyle;
    {
        const CDbOpen<AcDbTextStyleTable> table(drawing.textStyleTableId(), AcDb::kForWrite);
        auto* const pStyle = new AcDbTextStyleTableRecord;
        pStyle->setName(L"宋体");
        pStyle->setFont(L"SimSun", true, false, 134, 50);
        table->add(idStyle, pStyle);
        pStyle->close();
    }
    Add(drawing, new AcDbText({5, 6, 0}, L"三轴 \x2028 한 ^", idStyle, 3.5, 0.3));
    auto* const pMiddle = new AcDbText({40, 60, 0}, L"m", idStyle, 2.0);
    pMiddle->setHorizontalMode(AcDb::kTextCenter);
    pMiddle->setVerticalMode(AcDb::kTextVertMid);
    pMiddle->setAlignmentPoint({50, 60, 0});
    Add(drawing, pMiddle);
}

AcDbDatabase& Sample(AcDbDatabase& drawing) {
    AddCurves(drawing);
    AddTextWithStyle(drawing);
    AddTitle(drawing);
    return drawing;
}

CDxfFile ThereAndBack(const AcDbDatabase& drawing, AcDbDatabase& back) {
    CDxfFile file = WriteDxf(drawing);
    const CDxfLosses losses = ReadDxf(file.m_strBytes, back);
    EXPECT_EQ(losses, CDxfLosses());
    return file;
}

} // namespace

TEST(WriteDxf, PassesTheAuditOfAnotherProgramWithEqualCounts) {
    AcDbDatabase drawing;
    EXPECT_EQ(Audit(WriteDxf(Sample(drawing)).m_strBytes).m_strFindings,
              "ARC 1\nINSERT 1\nLINE 1\nLWPOLYLINE 1\nSPLINE 2\nTEXT 2\n");
}

TEST(WriteDxf, ShowsAnotherProgramTheExtentsThatItTellsInTheHeader) {
    AcDbDatabase drawing;
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, {0, 0}, 0.5);
    pPolyline->addVertexAt(1, {30, 0});
    Add(drawing, pPolyline);
    Add(drawing, new AcDbLine({-50, 3, 0}, {-20, 40, 6}));
    Add(drawing, new AcDbArc({60, 20, 0}, 25, 0.7, 2.1));
    const CDxfFile file = WriteDxf(drawing);
    EXPECT_NE(file.m_strBytes.find("$EXTMIN\n 10\n-50.0\n 20\n-7.5\n 30\n0.0\n"), std::string::npos);
    const std::vector<double> arBox = Audit(file.m_strBytes).m_arBox;
    const std::array arOurs = {-50.0, -7.5, 0.0, 60.0 + 25.0 * std::cos(0.7), 45.0, 6.0};
    ASSERT_EQ(arBox.size(), arOurs.size());
    constexpr double dFlattened = 0.02; // it takes chords for arcs
    for (std::size_t i = 0; i < arOurs.size(); ++i)
        EXPECT_NEAR(arBox[i], arOurs[i], dFlattened) << i;
}

TEST(WriteDxf, WritesAnEmptyDrawing) {
    AcDbDatabase drawing;
    EXPECT_EQ(Audit(WriteDxf(drawing).m_strBytes).m_strFindings, "");
}

TEST(WriteDxf, GivesCurvesThatReadBackExactly) {
    AcDbDatabase drawing, back;
    AddCurves(drawing);
    ThereAndBack(drawing, back);
    const auto lines = Entities<AcDbLine>(back.ModelSpaceId());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0]->startPoint().z, 0.3);
    EXPECT_EQ(lines[0]->endPoint().x, 1.0 / 3.0);
    EXPECT_EQ(lines[0]->endPoint().y, -2e-9);
    const auto arcs = Entities<AcDbArc>(back.ModelSpaceId());
    ASSERT_EQ(arcs.size(), 1U);
    EXPECT_EQ(arcs[0]->startAngle(), 0.7);
    EXPECT_EQ(arcs[0]->endAngle(), 2.1);
    const auto polylines = Entities<AcDbPolyline>(back.ModelSpaceId());
    ASSERT_EQ(polylines.size(), 1U);
    EXPECT_TRUE(polylines[0]->isClosed());
    ASSERT_EQ(polylines[0]->Vertices().size(), 3U);
    EXPECT_EQ(polylines[0]->Vertices()[0].m_dBulge, 0.5);
    EXPECT_EQ(polylines[0]->Vertices()[0].m_dStartWidth, -1.0);
    EXPECT_EQ(polylines[0]->Vertices()[1].m_dStartWidth, 1.5);
    EXPECT_EQ(polylines[0]->Vertices()[1].m_dEndWidth, 2.5);
}

TEST(WriteDxf, KeepsTheFitPointsOfASplineAndTheControlPointsOfAnother) {
    AcDbDatabase drawing, back;
    AddCurves(drawing);
    ThereAndBack(drawing, back);
    const auto splines = Entities<AcDbSpline>(back.ModelSpaceId());
    ASSERT_EQ(splines.size(), 2U);
    ASSERT_EQ(splines[0]->FitPoints().size(), 5U); // equal neighbours too
    EXPECT_EQ(splines[0]->FitPoints()[4], AcGePoint3d(30, 27, 0));
    EXPECT_FALSE(splines[1]->hasFitData());
    EXPECT_EQ(splines[1]->degree(), 2);
    EXPECT_EQ(splines[1]->Nurbs().m_arControlPoints.size(), 5U);
}

TEST(WriteDxf, GivesTextsThatReadBackAsTheyWere) {
    AcDbDatabase drawing, back;
    AddTextWithStyle(drawing);
    ThereAndBack(drawing, back);
    const auto texts = Entities<AcDbText>(back.ModelSpaceId());
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(std::wstring(texts[0]->textString()), L"三轴 \x2028 한 ^");
    EXPECT_DOUBLE_EQ(texts[0]->rotation(), 0.3);
    EXPECT_EQ(texts[0]->StyleName(), "宋体");
    EXPECT_EQ(texts[1]->position(), AcGePoint3d(40, 60, 0));
    EXPECT_EQ(texts[1]->alignmentPoint(), AcGePoint3d(50, 60, 0));
    EXPECT_EQ(texts[1]->horizontalMode(), AcDb::kTextCenter);
    EXPECT_EQ(texts[1]->verticalMode(), AcDb::kTextVertMid);
    const CDbOpen<AcDbTextStyleTableRecord> style(texts[0]->textStyle());
    EXPECT_EQ(style->Font().m_strFont, "SimSun");
}

TEST(WriteDxf, GivesBlocksAndAttributesThatReadBackAsTheyWere) {
    AcDbDatabase drawing, back;
    AddTitle(drawing);
    const CDxfFile file = ThereAndBack(drawing, back);
    EXPECT_NE(file.m_strBytes.find("AcDbBlockBegin\n  2\n标题\n 70\n2\n"), std::string::npos);
    const auto references = Entities<AcDbBlockReference>(back.ModelSpaceId());
    ASSERT_EQ(references.size(), 1U);
    EXPECT_EQ(references[0]->rotation(), 1.0);
    EXPECT_EQ(references[0]->scaleFactors(), AcGeScale3d(2.0));
    EXPECT_EQ(SymbolName(references[0]->blockTableRecord()), "标题");
    ASSERT_EQ(references[0]->AttributeIds().size(), 1U);
    EXPECT_EQ(std::wstring(CDbOpen<AcDbAttribute>(references[0]->AttributeIds()[0])->textString()), L"ZK1-1");
    const auto definitions = Entities<AcDbAttributeDefinition>(references[0]->blockTableRecord());
    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(std::wstring(definitions[0]->prompt()), L"Name?");
}

TEST(WriteDxf, KeepsHandlesPropertiesAndExtendedData) {
    AcDbDatabase drawing, back;
    const AcDbObjectId id = Add(drawing, new AcDbLine({0, 0, 0}, {1, 1, 0}));
    {
        const CDbOpen<AcDbLine> line(id, AcDb::kForWrite);
        line->setColorIndex(3);
        line->setLinetype(Record(drawing.linetypeTableId(), L"ByBlock"));
        const ads_point point = {1.5, 2.5, 3.5};
        const CResbufChain chain(acutBuildList(1001, L"ACAD", 1000, L"固结", 1011, point, 1070, 7, 1071,
                                               Adesk::Int32{70000}, RTNONE));
        ASSERT_EQ(line->setXData(chain.Get()), Acad::eOk);
    }
    ThereAndBack(drawing, back);
    const auto lines = Entities<AcDbLine>(back.ModelSpaceId());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0]->handle(), id.handle());
    EXPECT_EQ(back.ModelSpaceId().handle(), drawing.ModelSpaceId().handle());
    EXPECT_EQ(back.layerTableId().handle(), drawing.layerTableId().handle());
    EXPECT_EQ(lines[0]->colorIndex(), 3);
    EXPECT_EQ(lines[0]->LinetypeName(), "ByBlock");
    ASSERT_EQ(lines[0]->XData().Apps().size(), 1U);
    const std::vector<CXDataItem>& arItems = lines[0]->XData().Apps()[0].m_arItems;
    ASSERT_EQ(arItems.size(), 4U);
    EXPECT_EQ(std::get<std::wstring>(arItems[0].m_value), L"固结");
    EXPECT_EQ(std::get<AcGePoint3d>(arItems[1].m_value), AcGePoint3d(1.5, 2.5, 3.5));
    EXPECT_EQ(std::get<Adesk::Int32>(arItems[3].m_value), 70000);
}

TEST(WriteDxf, KeepsVariablesTheViewAndPaperSpace) {
    AcDbDatabase drawing, back;
    drawing.setLtscale(10.0);
    drawing.setInsbase({1, 2, 3});
    drawing.setCeltype(Record(drawing.linetypeTableId(), L"Continuous"));
    drawing.SetView({{7.0, 8.0}, 99.0});
    AddTo(Record(drawing.blockTableId(), ACDB_PAPER_SPACE), new AcDbLine({0, 0, 0}, {1, 0, 0}));
    const CDxfFile file = ThereAndBack(drawing, back);
    EXPECT_EQ(back.ltscale(), 10.0);
    EXPECT_EQ(back.insbase(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(SymbolName(back.celtype()), "Continuous");
    EXPECT_EQ(back.View().m_ptCenter.y, 8.0);
    EXPECT_EQ(back.View().m_dHeight, 99.0);
    EXPECT_EQ(Entities<AcDbLine>(Record(back.blockTableId(), ACDB_PAPER_SPACE)).size(), 1U);
    EXPECT_TRUE(Entities<AcDbLine>(back.ModelSpaceId()).empty());
    EXPECT_EQ(Audit(file.m_strBytes).m_strFindings, "");
}

TEST(WriteDxf, WritesACustomEntityAsWhatItExplodesInto) {
    AcDbDatabase drawing, back;
    Add(drawing, new CSquare);
    const CDxfFile file = WriteDxf(drawing, CDxfCustom::Exploded);
    EXPECT_EQ(ReadDxf(file.m_strBytes, back), CDxfLosses());
    EXPECT_EQ(file.m_losses, CDxfLosses());
    EXPECT_EQ(Entities<AcDbLine>(back.ModelSpaceId()).size(), 2U);
    EXPECT_EQ(Audit(file.m_strBytes).m_strFindings, "LINE 2\n");
}

TEST(WriteDxf, CountsWhatItCannotWrite) {
    AcDbDatabase drawing;
    auto* const pWhole = new CSquare;
    pWhole->m_bExplodes = false;
    Add(drawing, pWhole);
    Add(drawing, new AcDbPolyline);
    constexpr double dNone = std::numeric_limits<double>::quiet_NaN();
    Add(drawing, new AcDbLine({dNone, 0, 0}, {1, 1, 0}));
    Add(drawing, new AcDbLine({0, 0, 0}, {1, 1, 0}));
    drawing.setInsbase({dNone, 0, 0});
    const CDxfFile file = WriteDxf(drawing, CDxfCustom::Exploded);
    EXPECT_EQ(file.m_losses, (CDxfLosses{{"LINE", 1}, {"LWPOLYLINE", 1}, {"SQUARE", 1}}));
    EXPECT_EQ(Audit(file.m_strBytes).m_strFindings, "LINE 1\n");
}

TEST(WriteDxf, CountsAReferenceWhoseBlockIsErasedWithItsAttributes) {
    AcDbDatabase drawing, back;
    AddTitle(drawing);
    CDbOpen<AcDbBlockTableRecord>(Record(drawing.blockTableId(), L"标题"), AcDb::kForWrite)->erase();
    const CDxfFile file = WriteDxf(drawing);
    EXPECT_EQ(file.m_losses, (CDxfLosses{{"INSERT", 1}}));
    EXPECT_EQ(ReadDxf(file.m_strBytes, back), CDxfLosses());
    EXPECT_TRUE(Entities<AcDbBlockReference>(back.ModelSpaceId()).empty());
}

TEST(WriteDxf, WritesWhatItReadOfEachVersionAgain) {
    for (const char* szName : {"r12_text", "r2000_text", "r2007_binary", "r2018_text"}) {
        std::string strBytes;
        ASSERT_TRUE(
            ReadFileWhole(TERVO_TEST_DATA "/dxf/versions/" + std::string(szName) + ".dxf", &strBytes));
        AcDbDatabase drawing, back;
        ReadDxf(strBytes, drawing);
        const CDxfFile file = ThereAndBack(drawing, back);
        EXPECT_EQ(file.m_losses, CDxfLosses()) << szName;
        EXPECT_EQ(WriteDxf(back).m_strBytes.size(), file.m_strBytes.size()) << szName;
        const std::string strAudit = Audit(file.m_strBytes).m_strFindings;
        EXPECT_TRUE(strAudit.starts_with("ARC 2\nINSERT 1\nLINE 1\n")) << szName << "\n" << strAudit;
    }
}

TEST(WriteDxf, CountsAnEntityThatSomebodyIsChanging) {
    AcDbDatabase drawing;
    const CDbOpen<AcDbLine> line(Add(drawing, new AcDbLine({0, 0, 0}, {1, 1, 0})), AcDb::kForWrite);
    EXPECT_EQ(WriteDxf(drawing).m_losses, (CDxfLosses{{"entity in use", 1}}));
}
