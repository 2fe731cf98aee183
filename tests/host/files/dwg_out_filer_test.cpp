#include "host/files/dwg_out_filer.h"

#include "platform/acad/db_database.h"
#include "platform/acad/result_buffer.h"

#include <gtest/gtest.h>

namespace {

/// A filer with all that it stands on.
struct CFiling {
    CDwgRecordWriter m_io;
    CDrawingText m_text{g_nChinesePage};
    CDwgOutFiler::CHandleOf m_handleOf = [](AcDbObjectId id) { return id.isNull() ? 0u : 0x1Fu; };
    CDwgOutFiler m_filer{m_io, m_text, m_handleOf};
};

} // namespace

TEST(DwgOutFiler, WritesEachValueInItsCode) {
    CFiling filing;
    filing.m_filer.writeBoolean(Adesk::kTrue);
    EXPECT_EQ(filing.m_io.At(), 1u);
    filing.m_filer.writeInt8(-1);
    EXPECT_EQ(filing.m_io.At(), 9u);
    filing.m_filer.writeInt16(256);
    EXPECT_EQ(filing.m_io.At(), 11u);
    filing.m_filer.writeInt32(0);
    EXPECT_EQ(filing.m_io.At(), 13u);
    filing.m_filer.writeDouble(1.0);
    EXPECT_EQ(filing.m_io.At(), 15u);
    filing.m_filer.writePoint3d({1.0, 0.0, 1.0});
    EXPECT_EQ(filing.m_io.At(), 21u);
    EXPECT_EQ(filing.m_filer.writeString(L"\u56FA"), Acad::eOk);
    EXPECT_EQ(filing.m_io.At(), 21u + 10 + 16);
}

TEST(DwgOutFiler, PutsReferencesBesideTheData) {
    CFiling filing;
    const AcDbDatabase database;
    filing.m_filer.writeHardPointerId(database.ModelSpaceId());
    filing.m_filer.writeSoftPointerId(AcDbObjectId::kNull);
    filing.m_filer.writeHardOwnershipId(database.ModelSpaceId());
    filing.m_filer.writeSoftOwnershipId(database.ModelSpaceId());
    EXPECT_EQ(filing.m_io.At(), 0u);
    EXPECT_EQ(filing.m_io.TakeRecord(500, 1).m_arHandles,
              (std::vector{HardPointer(0x1F), SoftPointer(0), HardOwner(0x1F), SoftOwner(0x1F)}));
}

TEST(DwgOutFiler, FailsForATextThatIsTooLong) {
    CFiling filing;
    EXPECT_EQ(filing.m_filer.writeString(std::wstring(0x10000, L'x').c_str()), Acad::eFilerError);
    EXPECT_EQ(filing.m_filer.writeInt16(1), Acad::eFilerError);
}

TEST(DwgOutFiler, RefusesToReadAndToWriteWhatItKnowsNothingOf) {
    CFiling filing;
    Adesk::Int32 nValue = 7;
    EXPECT_EQ(filing.m_filer.readInt32(&nValue), Acad::eFilerError);
    EXPECT_EQ(nValue, 0);
    filing.m_filer.resetFilerStatus();
    ACHAR* text = nullptr;
    EXPECT_EQ(filing.m_filer.readString(&text), Acad::eFilerError);
    EXPECT_STREQ(text, L"");
    acutDelString(text);
    filing.m_filer.resetFilerStatus();
    EXPECT_EQ(filing.m_filer.writeRest({}), Acad::eFilerError);
}
