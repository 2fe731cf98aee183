#include "host/files/dwg_value_writer.h"

#include "platform/acad/db_database.h"
#include "platform/acad/memory_filer.h"

#include <gtest/gtest.h>

namespace {

/// What an operation writes; all objects stand under handle 1F.
template <class Write>
CDwgRecord Filed(Write write, CDwgRecordWriter io = {}) {
    CRecordWriter filer(AcDb::kFileFiler);
    write(filer);
    WriteDwgValues(io, filer.Take(), CDrawingText(g_nChinesePage),
                   [](AcDbObjectId id) { return id.isNull() ? 0u : 0x1Fu; });
    EXPECT_FALSE(io.Failed());
    return io.TakeRecord(500, 0x60);
}

} // namespace

TEST(WriteDwgValues, WritesEachValueInItsCode) {
    const CDwgRecord record = Filed([](AcDbDwgFiler& filer) {
        filer.writeBoolean(Adesk::kTrue);    // a bit
        filer.writeInt8(-1);                 // a byte
        filer.writeInt16(256);               // two bits, as all that follow
        filer.writeUInt16(0);                //
        filer.writeInt32(0);                 //
        filer.writeDouble(1.0);              //
        filer.writePoint3d({1.0, 0.0, 1.0}); // each
        filer.writeString(L"\u56FA");        // ten bits for the length, then two bytes
        filer.writeBytes("\1\2", 2);
    });
    EXPECT_EQ(record.m_data.m_nCount, 1u + 8 + 2 + 2 + 2 + 2 + 6 + 10 + 16 + 16);
}

TEST(WriteDwgValues, PutsReferencesBesideTheData) {
    const AcDbDatabase database;
    const CDwgRecord record = Filed([&database](AcDbDwgFiler& filer) {
        filer.writeHardPointerId(database.ModelSpaceId());
        filer.writeSoftPointerId(AcDbObjectId::kNull);
        filer.writeHardOwnershipId(database.ModelSpaceId());
        filer.writeSoftOwnershipId(database.ModelSpaceId());
    });
    EXPECT_EQ(record.m_data.m_nCount, 0u);
    EXPECT_EQ(record.m_arHandles,
              (std::vector{HardPointer(0x1F), SoftPointer(0), HardOwner(0x1F), SoftOwner(0x1F)}));
}

TEST(WriteDwgValues, FailsForATextThatIsTooLong) {
    CRecordWriter filer(AcDb::kFileFiler);
    filer.writeString(std::wstring(0x10000, L'x').c_str());
    CDwgRecordWriter io;
    WriteDwgValues(io, filer.Take(), CDrawingText(g_nChinesePage), [](AcDbObjectId) { return 0u; });
    EXPECT_TRUE(io.Failed());
}
