#include "host/datamanager/window/import_tables.h"

#include <gtest/gtest.h>

namespace {

const CFilePreview g_preview{"/a/b.csv",
                             {{1, {"ZKBH", "TCMC"}, ""}, {2, {"ZK1", "clay"}, ""}, {700, {"ZK2", ""}, ""}}};
const std::vector<CImportRemark> g_arRemarks = {{true, "/a/b.csv", 700, "TCMC", "the field is empty"},
                                                {true, "/a/b.csv", 700, "ZKBH", "no"},
                                                {true, "/a/c.csv", 2, "ZKBH", "of another file"},
                                                {false, "/a/b.csv", 2, "TCMC", "only a warning"}};

} // namespace

TEST(ImportTables, MarkRefusedRowsWithAllTheirReasons) {
    const std::vector<CTextRow> arRows = PreviewRows(g_preview, g_arRemarks);
    ASSERT_EQ(arRows.size(), 2U);
    EXPECT_EQ(arRows[0].m_arTexts, (QStringList{u"2"_qs, u"ZK1"_qs, u"clay"_qs}));
    EXPECT_EQ(arRows[0].m_mark, RowMark::None);
    EXPECT_EQ(arRows[1].m_mark, RowMark::Wrong);
    EXPECT_EQ(arRows[1].m_strHint, u"TCMC: the field is empty\nZKBH: no"_qs);
}

TEST(ImportTables, FindTheRowOfALine) {
    EXPECT_EQ(PreviewRowOf(g_preview, 2), 0);
    EXPECT_EQ(PreviewRowOf(g_preview, 700), 1);
    EXPECT_EQ(PreviewRowOf(g_preview, 1), -1);
    EXPECT_EQ(PreviewRowOf(g_preview, 3), -1);
}

TEST(ImportTables, NameTheFilesOwnColumns) {
    const std::vector<CTextColumn> arColumns = PreviewColumns(g_preview);
    ASSERT_EQ(arColumns.size(), 3U);
    EXPECT_EQ(arColumns[0].m_strName, u"Line"_qs);
    EXPECT_EQ(arColumns[2].m_strName, u"TCMC"_qs);
    EXPECT_EQ(PreviewColumns({"/a/empty.csv", {}}).size(), 1U);
}

TEST(ImportTables, TellWarningsFromRefusals) {
    const std::vector<CTextRow> arRows = RemarkRows(g_arRemarks);
    EXPECT_EQ(arRows[0].m_arTexts,
              (QStringList{u"b.csv"_qs, u"700"_qs, u"TCMC"_qs, u"the field is empty"_qs}));
    EXPECT_EQ(arRows[0].m_strHint, u"/a/b.csv:700: TCMC: the field is empty"_qs);
    EXPECT_EQ(arRows[3].m_arTexts[3], u"warning: only a warning"_qs);
    EXPECT_EQ(arRows[3].m_mark, RowMark::None);
}
