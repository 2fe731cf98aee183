#include "host/files/dwg_handle_map.h"

#include "tests/host/files/dwg_sample_drawing.h"

#include <gtest/gtest.h>

namespace {
AcDbObjectId AppendLine(AcDbDatabase& database) {
    return AppendTo(database.ModelSpaceId(), new AcDbLine);
}
} // namespace

TEST(DwgHandleMap, PutsWhatEveryDrawingHasUnderFixedHandles) {
    const AcDbDatabase database;
    const CDwgHandleMap handles(database);
    EXPECT_EQ(handles.Of(database.blockTableId()), 0x1u);
    EXPECT_EQ(handles.Of(database.linetypeTableId()), 0x5u);
    EXPECT_EQ(handles.Of(database.regAppTableId()), 0x9u);
    EXPECT_EQ(handles.Of(database.namedObjectsDictionaryId()), 0xCu);
    EXPECT_EQ(handles.Of(database.clayer()), 0x10u);
    EXPECT_EQ(handles.Of(database.textstyle()), 0x11u);
    EXPECT_EQ(handles.Of(database.ModelSpaceId()), 0x1Fu);
    EXPECT_EQ(handles.Of(RecordNamed(database.linetypeTableId(), L"byblock")), 0x14u);
    EXPECT_EQ(handles.Seed(), 0x60u);
}

TEST(DwgHandleMap, MovesOthersOutOfTheReservedOnesAndKeepsTheRest) {
    AcDbDatabase database;
    const AcDbObjectId idLow = AppendLine(database);
    database.SetHandle(idLow, AcDbHandle(0x28)); // as a file of another kind may have it
    AcDbObjectId idHigh;
    while (idHigh.handle().Value() < 0x80)
        idHigh = AppendLine(database);
    CDwgHandleMap handles(database);
    EXPECT_EQ(handles.Of(idHigh), 0x80u);
    EXPECT_GT(handles.Of(idLow), 0x80u);
    const std::uint64_t nNew = handles.New();
    EXPECT_GT(nNew, handles.Of(idLow));
    EXPECT_EQ(handles.Seed(), nNew + 1);
}

TEST(DwgHandleMap, HasNoneForNothingAndForWhatIsErased) {
    AcDbDatabase database;
    const AcDbObjectId id = AppendLine(database);
    CDbOpen<AcDbLine>(id, AcDb::kForWrite)->erase();
    const CDwgHandleMap handles(database);
    EXPECT_EQ(handles.Of(id), 0u);
    EXPECT_EQ(handles.Of(AcDbObjectId::kNull), 0u);
}
