#include "host/files/dwg_drawing_reader.h"

#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_handle_map.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/memory_filer.h"
#include "tests/host/files/dwg_refusal.h"
#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {

/// Something of everything.
void Fill(AcDbDatabase& database) {
    const AcDbObjectId idLayer =
        AddRecord(database.layerTableId(), L"\u571F\u5C42", new AcDbLayerTableRecord);
    const AcDbObjectId idBlock = AddBlock(database, L"\u56FE\u6846"), idModel = database.ModelSpaceId();
    AppendTo(idBlock, new AcDbAttributeDefinition({1.0, 2.0, 0.0}, L"text", L"TAG", L"Prompt?"));
    AppendTo(idBlock, new AcDbLine({0.0, 0.0, 0.0}, {10.0, -0.0, 0.0}));
    auto* const pLine = new AcDbLine({1.0, 2.0, 3.0}, {4.0, 5.0, -0.0});
    pLine->setColorIndex(3);
    pLine->setLayer(idLayer);
    AppendTo(idModel, pLine);
    AppendTo(idModel, new AcDbArc({1.0, 2.0, 3.0}, 4.0, 0.5, 1.5));
    auto* const pText =
        new AcDbText({1.0, 2.0, 3.0}, L"\u56FA\u7ED3 \u0159 \\U+0041", database.textstyle(), 3.5, 0.25);
    pText->setVerticalMode(AcDb::kTextTop);
    pText->setAlignmentPoint({5.0, 6.0, 3.0});
    AppendTo(idModel, pText);
    auto* const pPolyline = new AcDbPolyline;
    pPolyline->addVertexAt(0, {0.0, 0.0}, 0.5, 1.0, 2.0);
    pPolyline->addVertexAt(1, {5.0, 7.0}, 0.0, 0.0, 0.0);
    pPolyline->setClosed(Adesk::kTrue);
    AppendTo(idModel, pPolyline);
    AcGePoint3dArray points;
    for (const double d : {0.0, 1.0, 2.0})
        points.append({d, d * d, 0.0});
    AppendTo(idModel, new AcDbSpline(points, 4, 0.5));
    const AcDbObjectId idReference = AppendTo(idModel, new AcDbBlockReference({7.0, 8.0, 0.0}, idBlock));
    AppendAttribute(idReference, new AcDbAttribute({8.0, 8.0, 0.0}, L"first", L"TAG", database.textstyle()));
    AppendAttribute(idReference,
                    new AcDbAttribute({9.0, 8.0, 0.0}, L"second", L"TAG2", database.textstyle()));
}

std::unique_ptr<AcDbDatabase> ReadBack(const AcDbDatabase& database) {
    return DrawingOfDwg(ReadDwgFile(WriteDwgFile(DwgFileOf(database))));
}

std::vector<AcDbObjectId> EntitiesOf(AcDbObjectId idBlock) {
    return CDbOpen<AcDbBlockTableRecord>(idBlock)->EntityIds();
}

/// What an object writes, but for references, whose drawing is another one.
std::vector<std::byte> BytesOf(AcDbObjectId id) {
    const CDbOpen<AcDbObject> object(id);
    return RecordOf(*object.Get(), AcDb::kFileFiler).m_arBytes;
}

void ExpectSameEntities(const std::vector<AcDbObjectId>& expected, const std::vector<AcDbObjectId>& actual) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const CDbOpen<AcDbEntity> one(expected[i]), other(actual[i]);
        EXPECT_EQ(other->isA(), one->isA());
        EXPECT_EQ(other->LayerName(), one->LayerName());
        EXPECT_EQ(BytesOf(actual[i]), BytesOf(expected[i])) << i;
    }
}

} // namespace

TEST(DrawingOfDwg, HoldsEveryEntityToTheBit) {
    AcDbDatabase database;
    Fill(database);
    const auto pBack = ReadBack(database);
    ExpectSameEntities(EntitiesOf(database.ModelSpaceId()), EntitiesOf(pBack->ModelSpaceId()));
    const AcDbObjectId idReference = EntitiesOf(database.ModelSpaceId()).back();
    const AcDbObjectId idBack = EntitiesOf(pBack->ModelSpaceId()).back();
    const CDbOpen<AcDbBlockReference> reference(idReference), back(idBack);
    ExpectSameEntities(reference->AttributeIds(), back->AttributeIds());
    EXPECT_EQ(SymbolName(back->blockTableRecord()), "图框");
    ExpectSameEntities(EntitiesOf(reference->blockTableRecord()), EntitiesOf(back->blockTableRecord()));
}

TEST(DrawingOfDwg, KeepsHandlesFromTheFirstReadingOn) {
    AcDbDatabase database;
    Fill(database);
    const auto pFirst = ReadBack(database);
    const auto pSecond = ReadBack(*pFirst);
    const auto first = EntitiesOf(pFirst->ModelSpaceId()), second = EntitiesOf(pSecond->ModelSpaceId());
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i)
        EXPECT_EQ(first[i].handle(), second[i].handle());
    EXPECT_GT(pSecond->handseed(), second.back().handle());
}

TEST(DrawingOfDwg, KeepsTheVariables) {
    AcDbDatabase database;
    database.setLtscale(2.5);
    database.setInsbase({1.0, -0.0, 3.0});
    database.setClayer(AddRecord(database.layerTableId(), L"current", new AcDbLayerTableRecord));
    database.setCeltype(RecordNamed(database.linetypeTableId(), L"ByBlock"));
    const auto pBack = ReadBack(database);
    EXPECT_EQ(pBack->ltscale(), 2.5);
    EXPECT_TRUE(std::signbit(pBack->insbase().y));
    EXPECT_EQ(SymbolName(pBack->clayer()), "current");
    EXPECT_EQ(SymbolName(pBack->celtype()), "ByBlock");
    EXPECT_EQ(SymbolName(pBack->textstyle()), "Standard");
    EXPECT_FALSE(pBack->IsModified());
    EXPECT_TRUE(ReadBack(AcDbDatabase())->celtype().isNull());
}

TEST(DrawingOfDwg, KeepsWhoIsToldOfChanges) {
    AcDbDatabase database;
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine),
                       idTold = AppendTo(database.ModelSpaceId(), new AcDbLine);
    CDbOpen<AcDbLine>(idLine, AcDb::kForWrite)->addPersistentReactor(idTold);
    CDbOpen<AcDbLayerTableRecord>(database.clayer(), AcDb::kForWrite)->addPersistentReactor(idTold);
    const auto pBack = ReadBack(database);
    const auto ids = EntitiesOf(pBack->ModelSpaceId());
    EXPECT_TRUE(CDbOpen<AcDbLine>(ids[0])->hasPersistentReactor(ids[1]));
    EXPECT_TRUE(CDbOpen<AcDbLayerTableRecord>(pBack->clayer())->hasPersistentReactor(ids[1]));
}

TEST(DrawingOfDwg, KeepsExtendedDataOfRecordsAndEntities) {
    AcDbDatabase database;
    const AcDbObjectId idApp = AddRecord(database.regAppTableId(), L"APP", new AcDbRegAppTableRecord);
    const AcDbObjectId idLine = AppendTo(database.ModelSpaceId(), new AcDbLine);
    for (const AcDbObjectId& id : {idLine, database.clayer(), database.ModelSpaceId()})
        CDbOpen<AcDbObject>(id, AcDb::kForWrite)->PutXData({idApp, {{1000, L"\u571F"}, {1040, -0.0}}});
    const auto pBack = ReadBack(database);
    for (const AcDbObjectId& id :
         {EntitiesOf(pBack->ModelSpaceId())[0], pBack->clayer(), pBack->ModelSpaceId()}) {
        const CDbOpen<AcDbObject> object(id);
        ASSERT_EQ(object->XData().Apps().size(), 1u);
        const CXDataOfApp& app = object->XData().Apps()[0];
        EXPECT_EQ(SymbolName(app.m_idApp), "APP");
        ASSERT_EQ(app.m_arItems.size(), 2u);
        EXPECT_EQ(std::get<std::wstring>(app.m_arItems[0].m_value), L"\u571F");
        EXPECT_TRUE(std::signbit(std::get<double>(app.m_arItems[1].m_value)));
    }
}

TEST(DrawingOfDwg, RefusesHandlesThatLeaveNoRoomForOthers) {
    CDwgFile file = DwgFileOf(AcDbDatabase());
    file.m_contents[0xFFFFFFFFFFFFFFFF] = {};
    EXPECT_EQ(RefusalOf([&] { DrawingOfDwg(file); }), "Object map: a handle is higher than any drawing's.");
}

TEST(DrawingOfDwg, IsReadOrRefusedWhateverBitOfAnObjectIsChanged) {
    AcDbDatabase database;
    Fill(database);
    const CDwgFile file = DwgFileOf(database);
    std::size_t nRefused = 0, nRead = 0;
    for (const auto& [nHandle, content] : file.m_contents) {
        for (std::size_t nBit = 0; nBit < content.size() * 8; nBit += 11) {
            CDwgFile damaged = file;
            damaged.m_contents[nHandle][nBit / 8] ^= static_cast<std::uint8_t>(0x80 >> nBit % 8);
            ++(RefusalOf([&] { DrawingOfDwg(damaged); }).empty() ? nRead : nRefused);
        }
    }
    EXPECT_GT(nRefused, 300u);
    EXPECT_GT(nRead, 30u);
}

TEST(DrawingOfDwg, IsReadOrRefusedWhateverObjectIsMissing) {
    AcDbDatabase database;
    Fill(database);
    const CDwgFile file = DwgFileOf(database);
    for (const auto& [nHandle, content] : file.m_contents) {
        CDwgFile damaged = file;
        damaged.m_contents.erase(nHandle);
        const bool bTable = nHandle == 2 || nHandle == 3 || nHandle == 5 || nHandle == 9;
        const std::string strRefusal = RefusalOf([&] { DrawingOfDwg(damaged); });
        EXPECT_TRUE(!bTable || !strRefusal.empty()) << nHandle;
    }
}
