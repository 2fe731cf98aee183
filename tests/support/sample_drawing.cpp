#include "tests/support/sample_drawing.h"

#include "chart/chart_entity.h"
#include "frame/frame_entity.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/result_buffer.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/support/readings.h"

#include <array>

namespace {

void AddCurves(AcDbDatabase& database) {
    const AcDbObjectId idModel = database.ModelSpaceId();
    AppendTo(idModel, new AcDbArc({1.0, 2.0, 3.0}, 4.0, 0.5, 1.5));
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, {0.0, 0.0}, 0.5, 1.0, 2.0);
    pPolyline->addVertexAt(1, {5.0, 7.0}, 0.0, 0.0, 0.0);
    pPolyline->addVertexAt(2, {9.0, 7.0});
    pPolyline->setClosed(Adesk::kTrue);
    AppendTo(idModel, pPolyline);
    AcGePoint3dArray points;
    for (const double d : {0.0, 1.0, 2.0, 3.0})
        points.append({d, d * d, 0.0});
    AppendTo(idModel, new AcDbSpline(points, 4, 0.5));
    AcGeDoubleArray knots, weights;
    for (const double d : {0.0, 0.0, 0.0, 0.5, 1.0, 1.0, 1.0})
        knots.append(d);
    for (const double d : {1.0, 0.5, 2.0, 1.0})
        weights.append(d);
    AppendTo(idModel, new AcDbSpline(2, Adesk::kTrue, Adesk::kFalse, Adesk::kFalse, points, knots, weights));
}

void AddTexts(AcDbDatabase& database) {
    const AcDbObjectId idStyle =
        AddRecord(database.textStyleTableId(), L"注记", new AcDbTextStyleTableRecord);
    CDbOpen<AcDbTextStyleTableRecord>(idStyle, AcDb::kForWrite)->setFileName(L"txt.shx");
    CDbOpen<AcDbTextStyleTableRecord>(idStyle, AcDb::kForWrite)->setBigFontFileName(L"hztxt.shx");
    auto* const pText = new AcDbText({1.0, 2.0, 3.0}, L"固结 ř \\U+0041", idStyle, 3.5, 0.25);
    pText->setHorizontalMode(AcDb::kTextCenter);
    pText->setVerticalMode(AcDb::kTextTop);
    pText->setAlignmentPoint({5.0, 6.0, 3.0});
    AppendTo(database.ModelSpaceId(), pText);
}

void AddInsertion(AcDbDatabase& database) {
    const AcDbObjectId idBlock = AddBlock(database, L"孔位");
    AppendTo(idBlock, new AcDbAttributeDefinition({1.0, 2.0, 0.0}, L"ZK0", L"NUMBER", L"孔号?"));
    AppendTo(idBlock, new AcDbLine({0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}));
    auto* const pReference = new AcDbBlockReference({7.0, 8.0, 0.0}, idBlock);
    pReference->setScaleFactors({2.0, 0.5, 1.0});
    const AcDbObjectId idReference = AppendTo(database.ModelSpaceId(), pReference);
    AppendAttribute(idReference, new AcDbAttribute({8.0, 8.0, 0.0}, L"ZK1", L"NUMBER", database.textstyle()));
}

/// A line that has all that an entity may have.
void AddLine(AcDbDatabase& database) {
    const AcDbObjectId idLinetype =
        AddRecord(database.linetypeTableId(), L"DASHED2", new AcDbLinetypeTableRecord);
    CDbOpen<AcDbLinetypeTableRecord>(idLinetype, AcDb::kForWrite)->SetPattern(L"_ _", {0.25, -0.125});
    const AcDbObjectId idLayer = AddRecord(database.layerTableId(), L"土层", new AcDbLayerTableRecord);
    CDbOpen<AcDbLayerTableRecord>(idLayer, AcDb::kForWrite)->setLinetypeObjectId(idLinetype);
    AddRecord(database.regAppTableId(), L"TESTS", new AcDbRegAppTableRecord);
    auto* const pLine = new AcDbLine({1.0, 2.0, 3.0}, {4.0, 5.0, -6.0});
    pLine->setColorIndex(3);
    pLine->setLayer(idLayer);
    pLine->setLinetype(idLinetype);
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), pLine);
    const std::array point = {1.0, -2.0, 3.5};
    const CResbufChain chain(acutBuildList(1001, L"TESTS", 1000, L"剖面 ř", 1002, L"{", 1003, L"0", 1005,
                                           L"1F", 1010, point.data(), 1040, 2.5, 1070, 7, 1071,
                                           Adesk::Int32{70000}, 1002, L"}", RTNONE));
    CDbOpen<AcDbLine>(idLine, AcDb::kForWrite)->setXData(chain.Get());
}

} // namespace

void AddOneOfEachKind(AcDbDatabase& database) {
    AddLine(database);
    AddCurves(database);
    AddTexts(database);
    AddInsertion(database);
}

void AddSheet(AcDbDatabase& database) {
    const std::string strSet = "smith-ex3.4";
    auto* const pChart = new CBRENChart;
    pChart->m_strGCBH = "GC2024-017";
    pChart->m_strSYFF = MethodOf(strSet);
    pChart->m_strZKBH = "ZK1";
    pChart->m_strSoilName = "粉质黏土";
    CReduction reduction(*pChart);
    for (const CTestReading& reading : ReadingsOf(strSet))
        reduction.AddReading(reading);
    reduction.Finish();
    pChart->m_ptBase.set(20.0, 270.0, 0.0);
    pChart->m_idTextStyle = database.textstyle();
    AppendTo(database.ModelSpaceId(), pChart);
    auto* const pFrame = new CBRENFrame;
    pFrame->m_ptBase.set(10.0, 297.0, 0.0);
    pFrame->m_strGCMC = "地铁三号线勘察";
    pFrame->m_strZKBH = "ZK1";
    pFrame->m_bRQ = 1;
    pFrame->m_nYear = 2024;
    pFrame->m_idTextStyle = pFrame->m_idBannerStyle = database.textstyle();
    AppendTo(database.ModelSpaceId(), pFrame);
}
