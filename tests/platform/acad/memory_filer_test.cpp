#include "platform/acad/memory_filer.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"
#include "platform/acad/filed_text.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

CDbRecord Written(const std::function<void(AcDbDwgFiler&)>& write) {
    CRecordWriter writer(AcDb::kCopyFiler);
    write(writer);
    EXPECT_EQ(writer.filerStatus(), Acad::eOk);
    return writer.Take();
}

} // namespace

TEST(RecordFiler, ReadsEveryValueAsItWasWritten) {
    AcDbDatabase database;
    const AcDbObjectId id = database.clayer();
    const unsigned char bytes[] = {0, 255, 7};
    const CDbRecord record = Written([&](AcDbDwgFiler& filer) {
        filer.writeBoolean(Adesk::kTrue);
        filer.writeInt8(-128);
        filer.writeInt16(-32768);
        filer.writeUInt16(65535);
        filer.writeInt32(std::numeric_limits<Adesk::Int32>::min());
        filer.writeDouble(-0.0);
        filer.writePoint2d({1.5, -2.5});
        filer.writePoint3d({1.0, 2.0, 3.0});
        filer.writeVector3d({-1.0, 0.0, 1e300});
        filer.writeString(L"三轴\t");
        filer.writeString(nullptr);
        filer.writeBytes(bytes, sizeof bytes);
        filer.writeHardPointerId(id);
        filer.writeSoftPointerId(AcDbObjectId::kNull);
        filer.writeHardOwnershipId(id);
        filer.writeSoftOwnershipId(id);
    });

    CRecordReader reader(AcDb::kUndoFiler, record);
    EXPECT_EQ(reader.filerType(), AcDb::kUndoFiler);
    Adesk::Boolean flag = 0;
    Adesk::Int8 n8 = 0;
    Adesk::Int16 n16 = 0;
    Adesk::UInt16 u16 = 0;
    Adesk::Int32 n32 = 0;
    double dValue = 1.0;
    AcGePoint2d flat;
    AcGePoint3d point;
    AcGeVector3d vector;
    std::wstring text, empty = L"x";
    unsigned char back[3] = {};
    AcDbObjectId ids[4];
    reader.readBoolean(&flag);
    reader.readInt8(&n8);
    reader.readInt16(&n16);
    reader.readUInt16(&u16);
    reader.readInt32(&n32);
    reader.readDouble(&dValue);
    reader.readPoint2d(&flat);
    reader.readPoint3d(&point);
    reader.readVector3d(&vector);
    ReadText(&reader, text);
    ReadText(&reader, empty);
    reader.readBytes(back, sizeof back);
    reader.readHardPointerId(&ids[0]);
    reader.readSoftPointerId(&ids[1]);
    reader.readHardOwnershipId(&ids[2]);
    reader.readSoftOwnershipId(&ids[3]);
    EXPECT_TRUE(reader.IsAtEnd());
    EXPECT_EQ(flag, Adesk::kTrue);
    EXPECT_EQ(n8, -128);
    EXPECT_EQ(n16, -32768);
    EXPECT_EQ(u16, 65535);
    EXPECT_EQ(n32, std::numeric_limits<Adesk::Int32>::min());
    EXPECT_TRUE(dValue == 0.0 && std::signbit(dValue));
    EXPECT_EQ(flat.y, -2.5);
    EXPECT_EQ(point.z, 3.0);
    EXPECT_EQ(vector.z, 1e300);
    EXPECT_EQ(text, L"三轴\t");
    EXPECT_EQ(empty, L"");
    EXPECT_EQ(back[1], 255);
    EXPECT_EQ(ids[0], id);
    EXPECT_TRUE(ids[1].isNull());
    EXPECT_EQ(ids[3], id);
}

TEST(RecordFiler, GivesZerosAndKeepsItsStatusBehindTheEnd) {
    const CDbRecord record = Written([](AcDbDwgFiler& filer) { filer.writeInt16(5); });
    CRecordReader reader(AcDb::kCopyFiler, record);
    double dValue = 7.0;
    EXPECT_EQ(reader.readDouble(&dValue), Acad::eFilerError);
    EXPECT_EQ(dValue, 0.0);
    Adesk::Int16 n16 = 9;
    EXPECT_EQ(reader.readInt16(&n16), Acad::eFilerError) << "after a failure nothing more is given";
    EXPECT_EQ(n16, 0);
    EXPECT_EQ(reader.filerStatus(), Acad::eFilerError);
    reader.resetFilerStatus();
    EXPECT_EQ(reader.readInt16(&n16), Acad::eOk);
    EXPECT_EQ(n16, 5);
}

TEST(RecordFiler, RefusesATextLongerThanTheRecord) {
    const CDbRecord record = Written([](AcDbDwgFiler& filer) { filer.writeInt32(-1); });
    CRecordReader reader(AcDb::kCopyFiler, record);
    std::wstring text = L"x";
    EXPECT_EQ(ReadText(&reader, text), Acad::eFilerError);
    EXPECT_EQ(text, L"");
}

TEST(RecordFiler, RefusesAnIdThatTheRecordDoesNotList) {
    const CDbRecord record = Written([](AcDbDwgFiler& filer) { filer.writeInt32(0); });
    CRecordReader reader(AcDb::kCopyFiler, record);
    AcDbObjectId id;
    EXPECT_EQ(reader.readHardPointerId(&id), Acad::eFilerError);
    EXPECT_TRUE(id.isNull());
}

TEST(RecordFiler, KeepsTheKindOfEachReference) {
    AcDbDatabase database;
    const AcDbObjectId id = database.clayer();
    const CDbRecord record = Written([&](AcDbDwgFiler& filer) {
        filer.writeHardPointerId(id);
        filer.writeSoftPointerId(id);
        filer.writeHardOwnershipId(id);
        filer.writeSoftOwnershipId(id);
    });
    using enum CFiledId::CKind;
    const std::vector<CFiledId> expected{
        {HardPointer, id}, {SoftPointer, id}, {HardOwnership, id}, {SoftOwnership, id}};
    EXPECT_EQ(record.m_arIds, expected);
    EXPECT_TRUE(record.m_arBytes.empty());
}

TEST(RecordFiler, TakesTheRestAsItStandsAndPutsItBehindAnotherBeginning) {
    AcDbDatabase database;
    const CDbRecord record = Written([&](AcDbDwgFiler& filer) {
        filer.writeInt16(1);
        filer.writeHardPointerId(database.clayer());
        filer.writeDouble(2.5);
        filer.writeHardPointerId(database.textstyle());
    });
    CRecordReader reader(AcDb::kCopyFiler, record);
    Adesk::Int16 n16 = 0;
    AcDbObjectId id;
    reader.readInt16(&n16);
    reader.readHardPointerId(&id);
    CDbRecord rest;
    EXPECT_EQ(reader.readRest(&rest), Acad::eOk);
    EXPECT_TRUE(reader.IsAtEnd());

    const CDbRecord joined = Written([&](AcDbDwgFiler& filer) {
        filer.writeString(L"another");
        filer.writeRest(rest);
    });
    CRecordReader second(AcDb::kCopyFiler, joined);
    std::wstring text;
    double dValue = 0.0;
    ReadText(&second, text);
    second.readDouble(&dValue);
    second.readHardPointerId(&id);
    EXPECT_EQ(second.filerStatus(), Acad::eOk);
    EXPECT_EQ(dValue, 2.5);
    EXPECT_EQ(id, database.textstyle());
}

TEST(RecordFiler, GivesNoRestAfterAFailure) {
    const CDbRecord record = Written([](AcDbDwgFiler& filer) { filer.writeInt16(5); });
    CRecordReader reader(AcDb::kCopyFiler, record);
    double dValue = 0.0;
    reader.readDouble(&dValue);
    CDbRecord rest{{std::byte{1}}, {}};
    EXPECT_EQ(reader.readRest(&rest), Acad::eFilerError);
    EXPECT_EQ(rest, CDbRecord());
}

TEST(RecordFiler, GoesOneWayOnly) {
    CRecordWriter writer(AcDb::kCopyFiler);
    double dValue = 3.0;
    EXPECT_EQ(writer.readDouble(&dValue), Acad::eFilerError);
    EXPECT_EQ(dValue, 0.0);
    std::wstring text = L"x";
    EXPECT_EQ(ReadText(&writer, text), Acad::eFilerError);
    EXPECT_EQ(text, L"");
    const CDbRecord empty;
    CRecordReader reader(AcDb::kCopyFiler, empty);
    EXPECT_EQ(reader.writeDouble(1.0), Acad::eFilerError);
    EXPECT_EQ(reader.filerStatus(), Acad::eFilerError);
}

TEST(ObjectRecord, MakesAnEqualObject) {
    AcDbDatabase database;
    AcDbPolyline source;
    source.addVertexAt(0, {1.0, 2.0}, 0.5, 1.0, 2.0);
    source.addVertexAt(1, {3.0, 4.0});
    source.setClosed(Adesk::kTrue);
    source.setColorIndex(3);
    source.setLayer(database.clayer());
    const CDbRecord record = RecordOf(source, AcDb::kCopyFiler);
    AcDbPolyline copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_TRUE(reader.IsAtEnd());
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
    ASSERT_EQ(copy.numVerts(), 2U);
    EXPECT_EQ(copy.Vertices()[1].m_dStartWidth, -1.0);
    EXPECT_TRUE(copy.isClosed());
    EXPECT_EQ(copy.colorIndex(), 3);
    EXPECT_EQ(copy.layerId(), database.clayer());
}

TEST(ObjectRecord, EndsAListAtTheFirstValueThatIsNotThere) {
    AcDbPolyline source;
    for (unsigned int i = 0; i < 5; ++i)
        source.addVertexAt(i, {1.0 * i, 0.0});
    CDbRecord record = RecordOf(source, AcDb::kCopyFiler);
    record.m_arBytes.resize(record.m_arBytes.size() - 41); // the last vertex, and a byte of the one before it
    AcDbPolyline copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eFilerError);
    EXPECT_EQ(copy.numVerts(), 3U);
}

TEST(ObjectRecord, OfAnyLengthIsReadToItsEndOrRefused) {
    AcDbDatabase database;
    AcDbText source({1.0, 2.0, 0.0}, L"φ = 35.54°", database.textstyle(), 2.5);
    const CDbRecord whole = RecordOf(source, AcDb::kCopyFiler);
    for (std::size_t nBytes = 0; nBytes < whole.m_arBytes.size(); ++nBytes) {
        CDbRecord part = whole;
        part.m_arBytes.resize(nBytes);
        AcDbText copy;
        CRecordReader reader(AcDb::kCopyFiler, part);
        EXPECT_EQ(copy.dwgIn(&reader), Acad::eFilerError) << nBytes;
    }
    for (std::size_t nIds = 0; nIds < whole.m_arIds.size(); ++nIds) {
        CDbRecord part = whole;
        part.m_arIds.resize(nIds);
        AcDbText copy;
        CRecordReader reader(AcDb::kCopyFiler, part);
        EXPECT_EQ(copy.dwgIn(&reader), Acad::eFilerError) << nIds;
    }
}
