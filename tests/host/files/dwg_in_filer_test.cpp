#include "host/files/dwg_in_filer.h"

#include "host/files/dwg_value_writer.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_database.h"
#include "platform/acad/filed_text.h"

#include <gtest/gtest.h>

#include <array>

namespace {

const CDrawingText g_text(g_nChinesePage);

/// The record that an operation writes; objects stand under their own handles.
template <class Write>
CDwgRecord Written(Write write) {
    CRecordWriter filer(AcDb::kFileFiler);
    write(filer);
    EXPECT_EQ(filer.filerStatus(), Acad::eOk);
    CDwgRecordWriter io;
    WriteDwgValues(io, filer.Take(), g_text, [](AcDbObjectId id) { return id.handle().Value(); });
    return io.TakeRecord(500, 0x60);
}

/// A filer on a record of a drawing.
class CReading {
public:
    CReading(const CDwgRecord& record, const AcDbDatabase& database)
        : m_io(record)
        , m_idOf([&database](const CDwgHandle& handle) {
            AcDbObjectId id;
            database.getAcDbObjectId(id, AcDbHandle(handle.m_nValue));
            return id;
        })
        , m_filer(m_io, g_text, m_idOf) {}
    CDwgInFiler& Filer() { return m_filer; }
    bool IsAtEnd() const { return m_io.IsAtEnd(); }

private:
    CDwgRecordReader m_io;
    CDwgInFiler::CIdOf m_idOf;
    CDwgInFiler m_filer;
};

} // namespace

TEST(DwgInFiler, GivesBackWhatAnObjectWrote) {
    const AcDbDatabase database;
    AcDbArc arc({1.0, -0.0, 3.0}, 4.0, 0.5, 1.5), back;
    arc.setColorIndex(3);
    arc.setLayer(database.clayer());
    const CDwgRecord record = Written([&](AcDbDwgFiler& filer) { arc.dwgOut(&filer); });
    CReading reading(record, database);
    EXPECT_EQ(back.dwgIn(&reading.Filer()), Acad::eOk);
    EXPECT_TRUE(reading.IsAtEnd());
    EXPECT_EQ(RecordOf(back, AcDb::kFileFiler), RecordOf(arc, AcDb::kFileFiler));
    EXPECT_EQ(back.layerId(), database.clayer());
}

TEST(DwgInFiler, GivesBackEveryKindOfValue) {
    const AcDbDatabase database;
    const std::array<std::uint8_t, 3> bytes{1, 2, 3};
    const CDwgRecord record = Written([&](AcDbDwgFiler& filer) {
        filer.writeBoolean(7);
        filer.writeInt8(-8);
        filer.writeInt16(-9);
        filer.writeUInt16(0xFFFF);
        filer.writeInt32(-70000);
        filer.writePoint2d({1.5, -0.0});
        filer.writeVector3d({0.0, 1.0, 2.0});
        filer.writeString(L"\u56FA \u0159");
        filer.writeBytes(bytes.data(), 3);
        filer.writeSoftOwnershipId(database.ModelSpaceId());
    });
    CReading reading(record, database);
    AcDbDwgFiler& filer = reading.Filer();
    Adesk::Boolean b = 0;
    Adesk::Int8 nByte = 0;
    Adesk::Int16 nShort = 0;
    Adesk::UInt16 nUnsigned = 0;
    Adesk::Int32 nLong = 0;
    AcGePoint2d pt;
    AcGeVector3d vec;
    std::wstring strText;
    std::array<std::uint8_t, 3> back{};
    AcDbObjectId id;
    filer.readBoolean(&b);
    filer.readInt8(&nByte);
    filer.readInt16(&nShort);
    filer.readUInt16(&nUnsigned);
    filer.readInt32(&nLong);
    filer.readPoint2d(&pt);
    filer.readVector3d(&vec);
    ReadText(&filer, strText);
    filer.readBytes(back.data(), 3);
    filer.readSoftOwnershipId(&id);
    EXPECT_TRUE(reading.IsAtEnd());
    EXPECT_EQ(b, Adesk::kTrue);
    EXPECT_EQ(nByte, -8);
    EXPECT_EQ(nShort, -9);
    EXPECT_EQ(nUnsigned, 0xFFFF);
    EXPECT_EQ(nLong, -70000);
    EXPECT_TRUE(pt.x == 1.5 && std::signbit(pt.y));
    EXPECT_EQ(vec, AcGeVector3d(0.0, 1.0, 2.0));
    EXPECT_EQ(strText, L"\u56FA \u0159");
    EXPECT_EQ(back, bytes);
    EXPECT_EQ(id, database.ModelSpaceId());
}

TEST(DwgInFiler, GivesZerosAndAStatusForWhatIsNotThere) {
    const AcDbDatabase database;
    const CDwgRecord record;
    CReading reading(record, database);
    double d = 7.0;
    std::uint8_t byte = 7;
    AcDbObjectId id = database.ModelSpaceId();
    std::wstring strText = L"x";
    EXPECT_EQ(reading.Filer().readDouble(&d), Acad::eFilerError);
    EXPECT_EQ(reading.Filer().readBytes(&byte, 1), Acad::eFilerError);
    EXPECT_EQ(reading.Filer().readHardPointerId(&id), Acad::eFilerError);
    EXPECT_EQ(ReadText(&reading.Filer(), strText), Acad::eFilerError);
    EXPECT_EQ(d, 0.0);
    EXPECT_EQ(byte, 0);
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(strText, L"");
}

TEST(DwgInFiler, RefusesToWriteAndToTakeTheRestUnread) {
    const AcDbDatabase database;
    const CDwgRecord record;
    CReading writing(record, database), rest(record, database);
    EXPECT_EQ(writing.Filer().writeInt16(1), Acad::eFilerError);
    CDbRecord taken;
    taken.m_arBytes.resize(1);
    EXPECT_EQ(rest.Filer().readRest(&taken), Acad::eFilerError);
    EXPECT_TRUE(taken.m_arBytes.empty());
}
