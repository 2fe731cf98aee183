#include "host/files/dxf_drawing.h"

#include <gtest/gtest.h>

namespace {

/// A record with nothing but a handle.
class CWithHandle {
public:
    explicit CWithHandle(std::string_view handle) { m_record.m_arTags.push_back({5, handle, 1}); }
    operator const CDxfRecord&() const { return m_record; }

private:
    CDxfRecord m_record;
};

} // namespace

TEST(DxfDrawing, FindsARecordByItsNameInAnyCase) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    const AcDbObjectId id = drawing.Layer(L"Notes");
    EXPECT_EQ(SymbolName(id), "Notes");
    EXPECT_EQ(drawing.Layer(L"NOTES"), id);
    EXPECT_EQ(drawing.Layer(L"0"), database.clayer());
    EXPECT_EQ(drawing.Layer(L""), database.clayer());
    EXPECT_EQ(drawing.TextStyle(L"standard"), database.textstyle());
    EXPECT_EQ(drawing.TextStyle(L""), database.textstyle());
}

TEST(DxfDrawing, HasOneModelSpaceWhateverTheVersionCallsIt) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    for (const ACHAR* name : {L"*Model_Space", L"*MODEL_SPACE", L"$MODEL_SPACE"})
        EXPECT_EQ(drawing.Block(name), database.ModelSpaceId());
    EXPECT_EQ(drawing.Block(L"$PAPER_SPACE"), drawing.Block(ACDB_PAPER_SPACE));
    EXPECT_EQ(CDbOpen<AcDbBlockTable>(database.blockTableId())->RecordIds().size(), 2U);
}

TEST(DxfDrawing, GivesNoLinetypeForByLayer) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    EXPECT_TRUE(drawing.Linetype(L"BYLAYER").isNull());
    EXPECT_TRUE(drawing.Linetype(L"").isNull());
    EXPECT_EQ(SymbolName(drawing.LinetypeRecord(L"BYLAYER")), "ByLayer");
    EXPECT_EQ(SymbolName(drawing.Linetype(L"BYBLOCK")), "ByBlock");
}

TEST(DxfDrawing, MakesNoRecordWithoutAName) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    EXPECT_TRUE(drawing.Block(L"").isNull());
    EXPECT_TRUE(drawing.App(L"").isNull());
}

TEST(DxfDrawing, PassesOverAHandleThatIsNone) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    const AcDbHandle own = database.clayer().handle();
    for (const char* szHandle : {"", "0", "xyz", "FFFFFFFFFFFFFFFF", "11112222333344445555"}) {
        drawing.Identify(database.clayer(), CWithHandle(szHandle));
        EXPECT_EQ(database.clayer().handle(), own) << szHandle;
    }
    drawing.Identify(database.clayer(), CWithHandle("  2af"));
    EXPECT_EQ(database.clayer().handle(), AcDbHandle(0x2AF));
}

TEST(DxfDrawing, CountsEachKindThatIsLost) {
    AcDbDatabase database;
    CDxfDrawing drawing(database);
    drawing.Lose("CIRCLE");
    drawing.Lose("CIRCLE");
    drawing.Lose("HATCH");
    EXPECT_EQ(drawing.Losses(), (CDxfLosses{{"CIRCLE", 2}, {"HATCH", 1}}));
}
