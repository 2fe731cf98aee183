#include "host/files/dxf_read.h"

#include "platform/acad/db_arc.h"
#include "platform/acad/db_attribute.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/windows/file_bytes.h"
#include "tests/host/files/drawing_contents.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

std::string Fixture(const std::string& strName) {
    std::string strBytes;
    EXPECT_TRUE(ReadFileWhole(TERVO_TEST_DATA "/dxf/versions/" + strName + ".dxf", &strBytes)) << strName;
    return strBytes;
}

std::string Failure(std::string_view bytes) {
    AcDbDatabase drawing;
    try {
        ReadDxf(bytes, drawing);
    } catch (const CDxfFailure& failure) {
        return failure.what();
    }
    return "none";
}

/// A text file with nothing but these entities.
std::string WithEntities(const std::string& strEntities) {
    return "0\nSECTION\n2\nENTITIES\n" + strEntities + "0\nENDSEC\n0\nEOF\n";
}

} // namespace

/// The same drawing, written by another program in each version and form.
class DxfFixture : public testing::TestWithParam<const char*> {
protected:
    DxfFixture() { m_losses = ReadDxf(m_strBytes, m_drawing); }
    bool IsR12() const { return std::string_view(GetParam()).starts_with("r12_"); }

    std::string m_strBytes = Fixture(GetParam());
    AcDbDatabase m_drawing;
    CDxfLosses m_losses;
};

TEST_P(DxfFixture, GivesLines) {
    const auto lines = Entities<AcDbLine>(m_drawing.ModelSpaceId());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0]->startPoint(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(lines[0]->endPoint(), AcGePoint3d(4, 5, 6));
    EXPECT_EQ(lines[0]->LayerName(), "曲线");
    EXPECT_EQ(lines[0]->colorIndex(), 3);
    EXPECT_EQ(lines[0]->LinetypeName(), "ByBlock");
}

TEST_P(DxfFixture, GivesExtendedData) {
    const auto lines = Entities<AcDbLine>(m_drawing.ModelSpaceId());
    ASSERT_EQ(lines.size(), 1U);
    const std::vector<CXDataOfApp>& arApps = lines[0]->XData().Apps();
    ASSERT_EQ(arApps.size(), 1U);
    EXPECT_EQ(SymbolName(arApps[0].m_idApp), "GEO");
    const std::vector<CXDataItem>& arItems = arApps[0].m_arItems;
    ASSERT_EQ(arItems.size(), 7U);
    EXPECT_EQ(std::get<std::wstring>(arItems[0].m_value), L"固结");
    EXPECT_EQ(std::get<AcGePoint3d>(arItems[2].m_value), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(std::get<double>(arItems[4].m_value), 2.5);
    EXPECT_EQ(std::get<Adesk::Int16>(arItems[5].m_value), 7);
    EXPECT_EQ(std::get<Adesk::Int32>(arItems[6].m_value), 70000);
}

TEST_P(DxfFixture, GivesArcsAlsoOfAPlaneSeenFromBelow) {
    const auto arcs = Entities<AcDbArc>(m_drawing.ModelSpaceId());
    ASSERT_EQ(arcs.size(), 2U);
    constexpr double dDegree = std::numbers::pi / 180.0;
    EXPECT_EQ(arcs[0]->center(), AcGePoint3d(10, 20, 0));
    EXPECT_EQ(arcs[0]->radius(), 5.0);
    EXPECT_DOUBLE_EQ(arcs[0]->startAngle(), 30 * dDegree);
    EXPECT_DOUBLE_EQ(arcs[0]->endAngle(), 120 * dDegree);
    EXPECT_EQ(arcs[1]->center(), AcGePoint3d(-10, 20, 0));
    EXPECT_NEAR(std::cos(arcs[1]->startAngle()), std::cos(60 * dDegree), 1e-12);
    EXPECT_NEAR(std::cos(arcs[1]->endAngle()), std::cos(150 * dDegree), 1e-12);
}

TEST_P(DxfFixture, GivesBothKindsOfFlatPolylines) {
    const auto polylines = Entities<AcDbPolyline>(m_drawing.ModelSpaceId());
    ASSERT_EQ(polylines.size(), IsR12() ? 1U : 2U);
    for (const auto& pPolyline : polylines) {
        const std::vector<CPolylineVertex>& arVertices = pPolyline->Vertices();
        ASSERT_EQ(arVertices.size(), 3U);
        EXPECT_TRUE(pPolyline->isClosed());
        EXPECT_EQ(arVertices[1].m_pt.x, 10.0);
        EXPECT_EQ(arVertices[1].m_pt.y, 0.0);
        EXPECT_EQ(arVertices[1].m_dBulge, 1.0);
        EXPECT_EQ(arVertices[1].m_dStartWidth, 0.5);
        EXPECT_EQ(arVertices[1].m_dEndWidth, 1.0);
        EXPECT_EQ(arVertices[2].m_dStartWidth, -1.0);
    }
}

TEST_P(DxfFixture, GivesSplinesByPointsAndByControlPoints) {
    const auto splines = Entities<AcDbSpline>(m_drawing.ModelSpaceId());
    ASSERT_EQ(splines.size(), IsR12() ? 0U : 2U);
    if (IsR12()) return;
    ASSERT_EQ(splines[0]->FitPoints().size(), 4U);
    EXPECT_EQ(splines[0]->FitPoints()[3], AcGePoint3d(30, 5, 0));
    EXPECT_FALSE(splines[1]->hasFitData());
    EXPECT_EQ(splines[1]->Nurbs().m_arControlPoints.size(), 5U);
    EXPECT_TRUE(splines[1]->Nurbs().IsCurve());
}

TEST_P(DxfFixture, GivesTextsInTheirStyle) {
    const auto texts = Entities<AcDbText>(m_drawing.ModelSpaceId());
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(std::wstring(texts[0]->textString()), L"三轴 c=20kPa");
    EXPECT_EQ(texts[0]->position(), AcGePoint3d(5, 6, 0));
    EXPECT_EQ(texts[0]->height(), 3.5);
    EXPECT_EQ(texts[0]->widthFactor(), 0.8);
    EXPECT_DOUBLE_EQ(texts[0]->rotation(), std::numbers::pi / 4);
    EXPECT_EQ(texts[0]->StyleName(), "汉字");
    EXPECT_EQ(texts[1]->horizontalMode(), AcDb::kTextCenter);
    EXPECT_EQ(texts[1]->verticalMode(), AcDb::kTextVertMid);
    EXPECT_EQ(texts[1]->alignmentPoint(), AcGePoint3d(50, 60, 0));
}

TEST_P(DxfFixture, GivesBlocksAndReferencesWithAttributes) {
    const auto references = Entities<AcDbBlockReference>(m_drawing.ModelSpaceId());
    ASSERT_EQ(references.size(), 1U);
    EXPECT_EQ(references[0]->position(), AcGePoint3d(100, 200, 0));
    EXPECT_EQ(references[0]->scaleFactors(), AcGeScale3d(2, 2, 1));
    EXPECT_DOUBLE_EQ(references[0]->rotation(), std::numbers::pi / 2);
    ASSERT_EQ(references[0]->AttributeIds().size(), 1U);
    const CDbOpen<AcDbAttribute> attribute(references[0]->AttributeIds()[0]);
    EXPECT_EQ(std::wstring(attribute->tag()), L"NAME");
    EXPECT_EQ(std::wstring(attribute->textString()), L"ZK1-1");

    const AcDbObjectId idBlock = references[0]->blockTableRecord();
    EXPECT_EQ(SymbolName(idBlock), "TITLE");
    EXPECT_EQ(Entities<AcDbLine>(idBlock).size(), 1U);
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(idBlock)->origin(), AcGePoint3d(1, 2, 0));
    const auto definitions = Entities<AcDbAttributeDefinition>(idBlock);
    ASSERT_EQ(definitions.size(), 1U);
    EXPECT_EQ(std::wstring(definitions[0]->prompt()), L"Name?");
    EXPECT_EQ(std::wstring(definitions[0]->textString()), L"试样");
}

TEST_P(DxfFixture, GivesTheRecordsOfItsTables) {
    const CDbOpen<AcDbLayerTableRecord> layer(Record(m_drawing.layerTableId(), L"曲线"));
    ASSERT_TRUE(layer);
    EXPECT_EQ(layer->ColorIndex(), 1);
    EXPECT_EQ(SymbolName(layer->linetypeObjectId()), "DASHES");
    const CDbOpen<AcDbLinetypeTableRecord> linetype(layer->linetypeObjectId());
    EXPECT_EQ(linetype->Dashes(), (std::vector{10.0, -5.0}));
    EXPECT_EQ(linetype->Comments(), L"long dashes");
    const CDbOpen<AcDbTextStyleTableRecord> style(Record(m_drawing.textStyleTableId(), L"汉字"));
    ASSERT_TRUE(style);
    EXPECT_EQ(style->FileName(), L"txt.shx");
    EXPECT_EQ(style->BigFontFileName(), L"hztxt.shx");
    EXPECT_EQ(style->xScale(), 0.75);
    EXPECT_FALSE(Record(m_drawing.regAppTableId(), L"GEO").isNull());
}

TEST_P(DxfFixture, GivesTheVariablesOfTheDrawing) {
    EXPECT_EQ(m_drawing.ltscale(), 10.0);
    EXPECT_EQ(m_drawing.insbase(), AcGePoint3d(7, 8, 0));
    EXPECT_EQ(SymbolName(m_drawing.clayer()), "曲线");
    EXPECT_FALSE(m_drawing.IsModified());
}

TEST_P(DxfFixture, CountsWhatADrawingHasNot) {
    EXPECT_EQ(m_losses["CIRCLE"], 2);
    EXPECT_EQ(m_losses["POLYLINE"], 1);
    for (const char* szRead :
         {"LINE", "ARC", "VERTEX", "SEQEND", "INSERT", "ATTRIB", "ATTDEF", "TEXT", "LAYER"})
        EXPECT_FALSE(m_losses.contains(szRead)) << szRead;
}

TEST_P(DxfFixture, KeepsTheHandles) {
    // The handle behind the type of the first line of the section of entities, in the text form.
    if (!std::string_view(GetParam()).ends_with("_text")) return;
    const std::size_t nSection = m_strBytes.find("ENTITIES");
    const std::size_t nLine = m_strBytes.find("\nLINE\n  5\n", nSection) + 10;
    const std::string strHandle = m_strBytes.substr(nLine, m_strBytes.find('\n', nLine) - nLine);
    EXPECT_EQ(Entities<AcDbLine>(m_drawing.ModelSpaceId())[0]->handle().Hex(), strHandle);
}

INSTANTIATE_TEST_SUITE_P(Versions, DxfFixture,
                         testing::Values("r12_text", "r12_binary", "r2000_text", "r2000_binary",
                                         "r2000_western_text", "r2004_text", "r2004_binary", "r2007_text",
                                         "r2007_binary", "r2010_text", "r2010_binary", "r2013_text",
                                         "r2013_binary", "r2018_text", "r2018_binary"),
                         [](const auto& row) { return std::string(row.param); });

TEST(ReadDxf, NamesThePlaceOfWhatItCannotRead) {
    EXPECT_EQ(Failure(""), "line 0: no DXF file");
    EXPECT_EQ(Failure("10\n1.0\n"), "line 1: no DXF file");
    EXPECT_EQ(Failure("0\nLINE\n0\nEOF\n"), "line 1: a section is expected");
    EXPECT_EQ(Failure("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n"),
              "line 5: the file ends before its end is told");
    EXPECT_EQ(Failure("0\nSECTION\n2\nENTITIES\n0\nLINE\n"), "line 1: a section that does not end");
    EXPECT_EQ(Failure("0\nSECTION\n2\nBLOCKS\n0\nLINE\n"), "line 5: a block is expected");
    EXPECT_EQ(Failure(WithEntities("0\nLINE\n102\n{APP\n330\n1F\n")),
              "line 7: a group of an application that does not end");
}

TEST(ReadDxf, EndsWithAnErrorWhereverTheFileIsCutOff) {
    for (const char* szName : {"r12_text", "r12_binary", "r2000_text", "r2018_binary"}) {
        const std::string strBytes = Fixture(szName);
        for (std::size_t nSize = 0; nSize + 8 < strBytes.size(); nSize += 61)
            EXPECT_NE(Failure(std::string_view(strBytes).substr(0, nSize)), "none") << szName << " " << nSize;
    }
}

TEST(ReadDxf, TakesOrRefusesAFileWithAnyByteChanged) {
    for (const char* szName : {"r12_text", "r12_binary", "r2000_text", "r2000_binary", "r2018_binary"}) {
        const std::string strBytes = Fixture(szName);
        std::size_t nRefused = 0;
        for (std::size_t nAt = 0; nAt < strBytes.size(); nAt += 7) {
            std::string strChanged = strBytes;
            strChanged[nAt] = static_cast<char>(strChanged[nAt] ^ (1 << (nAt % 8)));
            nRefused += Failure(strChanged) != "none";
        }
        EXPECT_GT(nRefused, 0U) << szName;
    }
}

TEST(ReadDxf, CountsEntitiesWithValuesThatNoneCanHave) {
    AcDbDatabase drawing;
    const CDxfLosses losses = ReadDxf(WithEntities("0\nARC\n40\n-1.0\n"
                                                   "0\nTEXT\n40\n-1.0\n"
                                                   "0\nINSERT\n2\nB\n41\n0.0\n"
                                                   "0\nATTRIB\n2\nT\n1\nlost along with it\n"
                                                   "0\nINSERT\n"
                                                   "0\nSPLINE\n71\n3\n40\n0.0\n10\n1.0\n20\n1.0\n"
                                                   "0\nVERTEX\n0\nSEQEND\n"),
                                      drawing);
    EXPECT_EQ(losses, (CDxfLosses{{"ARC", 1}, {"INSERT", 2}, {"SPLINE", 1}, {"TEXT", 1}}));
}

TEST(ReadDxf, CountsWhatLiesInAnotherPlane) {
    AcDbDatabase drawing;
    const CDxfLosses losses = ReadDxf(
        WithEntities("0\nARC\n10\n1.0\n40\n1.0\n50\n0.0\n51\n90.0\n210\n1.0\n220\n0.0\n230\n0.0\n"), drawing);
    EXPECT_EQ(losses, (CDxfLosses{{"ARC", 1}}));
}

TEST(ReadDxf, GivesTheEarlierOfTwoEqualHandlesAndMakesRoomForIt) {
    AcDbDatabase drawing;
    const AcDbHandle handle = drawing.layerTableId().handle();
    const std::string strLine = "0\nLINE\n5\n" + handle.Hex() + "\n";
    ReadDxf(WithEntities(strLine + strLine), drawing);
    const auto lines = Entities<AcDbLine>(drawing.ModelSpaceId());
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0]->handle(), handle);
    EXPECT_NE(lines[1]->handle(), handle);
    EXPECT_NE(drawing.layerTableId().handle(), handle);
}

TEST(ReadDxf, MakesTheLayerStyleAndBlockThatNoTableDefines) {
    AcDbDatabase drawing;
    ReadDxf(WithEntities("0\nTEXT\n8\nNOTES\n7\nROMAN\n40\n1.0\n0\nINSERT\n2\nGONE\n"), drawing);
    EXPECT_EQ(Entities<AcDbText>(drawing.ModelSpaceId())[0]->LayerName(), "NOTES");
    EXPECT_EQ(Entities<AcDbText>(drawing.ModelSpaceId())[0]->StyleName(), "ROMAN");
    const auto references = Entities<AcDbBlockReference>(drawing.ModelSpaceId());
    EXPECT_EQ(SymbolName(references[0]->blockTableRecord()), "GONE");
}

TEST(ReadDxf, CountsPropertiesThatNoEntityHasHere) {
    AcDbDatabase drawing;
    const CDxfLosses losses = ReadDxf(WithEntities("0\nLINE\n370\n25\n48\n1.0\n420\n255\n60\n1\n"), drawing);
    EXPECT_EQ(losses, (CDxfLosses{{"hidden entity", 1}, {"line weight", 1}, {"true colour", 1}}));
}

TEST(ReadDxf, CountsWhatAnEntityLosesOfItsShape) {
    AcDbDatabase drawing;
    const CDxfLosses losses = ReadDxf(WithEntities("0\nLWPOLYLINE\n38\n5.0\n10\n1.0\n20\n1.0\n"
                                                   "0\nPOLYLINE\n10\n0.0\n20\n0.0\n30\n5.0\n0\nSEQEND\n"
                                                   "0\nTEXT\n40\n1.0\n71\n2\n"
                                                   "0\nINSERT\n2\nB\n70\n3\n"),
                                      drawing);
    EXPECT_EQ(losses, (CDxfLosses{{"INSERT in rows and columns", 1},
                                  {"LWPOLYLINE elevation", 1},
                                  {"POLYLINE elevation", 1},
                                  {"text backward or upside down", 1}}));
    EXPECT_EQ(Entities<AcDbPolyline>(drawing.ModelSpaceId()).size(), 2U);
    EXPECT_EQ(Entities<AcDbBlockReference>(drawing.ModelSpaceId()).size(), 1U);
}
