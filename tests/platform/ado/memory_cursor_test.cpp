#include "platform/ado/memory_cursor.h"

#include <gtest/gtest.h>

TEST(MemoryCursor, KeepsWhatIsWrittenToIt) {
    CMemoryCursor rows({{"a", DBTYPE_BSTR}, {"b", DBTYPE_I4}});
    rows.InsertRow({{1, std::int64_t{5}}});
    rows.UpdateRow(0, {{0, std::string("固结")}});
    EXPECT_TRUE(rows.RefreshRow(0));
    EXPECT_EQ(rows.RowCount(), 1U);
    EXPECT_EQ(CellText(rows.Cell(0, 0)), "固结");
    EXPECT_EQ(CellText(rows.Cell(0, 1)), "5");
    EXPECT_EQ(rows.CellType(0, 1), DBTYPE_I4);
    EXPECT_NO_THROW(rows.DeleteRow(0));
}

TEST(MemoryCursor, TellsColumnsApartWhoseSecondBytesDifferAsLettersDoByCase) {
    const CMemoryCursor rows({{"笰x", DBTYPE_BSTR}, {"筧x", DBTYPE_BSTR}}); // B941 and B961
    EXPECT_EQ(rows.FindColumn("筧X"), 1U);
    EXPECT_EQ(rows.FindColumn("笰X"), 0U);
    EXPECT_FALSE(rows.FindColumn("筧").has_value());
}
