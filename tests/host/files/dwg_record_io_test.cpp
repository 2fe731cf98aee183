#include "host/files/dwg_record_io.h"

#include <gtest/gtest.h>

namespace {
CDwgRecord RecordWith(std::vector<CDwgHandle> handles) {
    CDwgRecord record;
    record.m_nHandle = 0x60;
    record.m_arHandles = std::move(handles);
    return record;
}
} // namespace

TEST(DwgRecordReader, GivesRelativeReferencesAsAbsoluteOnes) {
    const CDwgRecord record = RecordWith({{0x6, 0}, {0xC, 0x10}, HardOwner(5)});
    CDwgRecordReader reader(record);
    std::vector<CDwgHandle> handles;
    reader.Handles(handles, 3);
    EXPECT_EQ(handles, (std::vector{SoftPointer(0x61), SoftPointer(0x50), HardOwner(5)}));
    EXPECT_TRUE(reader.IsAtEnd());
}

TEST(DwgRecordReader, FailsForAReferenceThatIsNotThere) {
    const CDwgRecord record = RecordWith({HardOwner(5)});
    CDwgRecordReader one(record), many(record);
    CDwgHandle handle;
    one.Handle(handle);
    EXPECT_FALSE(one.Failed());
    one.Handle(handle);
    EXPECT_TRUE(one.Failed());
    EXPECT_EQ(handle, CDwgHandle());
    std::vector<CDwgHandle> handles;
    many.Handles(handles, std::size_t{1} << 60);
    EXPECT_TRUE(many.Failed());
    EXPECT_TRUE(handles.empty());
}

TEST(DwgRecordReader, IsNotAtItsEndWhileSomethingIsLeft) {
    CDwgRecord record = RecordWith({HardOwner(5)});
    EXPECT_FALSE(CDwgRecordReader(record).IsAtEnd());
    record.m_arHandles.clear();
    EXPECT_TRUE(CDwgRecordReader(record).IsAtEnd());
    record.m_data = {{0}, 1};
    EXPECT_FALSE(CDwgRecordReader(record).IsAtEnd());
}

TEST(DwgRecordWriter, MakesARecordOfWhatWasWritten) {
    CDwgRecordWriter writer;
    writer.B(true);
    writer.Handle(HardOwner(5));
    writer.Handles({SoftPointer(1), SoftPointer(2)}, 1);
    const CDwgRecord record = writer.TakeRecord(0x13, 0x60);
    EXPECT_EQ(record.m_nType, 0x13);
    EXPECT_EQ(record.m_nHandle, 0x60u);
    EXPECT_EQ(record.m_data, (CDwgBits{{0x80}, 1}));
    EXPECT_EQ(record.m_arHandles, (std::vector{HardOwner(5), SoftPointer(1)}));
}
