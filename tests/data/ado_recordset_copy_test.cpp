#include "data/ado_recordset.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoRecordsetCopy : public CAdoTest {
protected:
    AdoRecordsetCopy() { m_rows.Open("select * from t order by id", RecordsetOption_Table); }

    CTempFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Engines, AdoRecordsetCopy, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoRecordsetCopy, ClonesWithACurrentRowOfItsOwn) {
    m_rows.MoveNext();
    CADORecordset clone;
    ASSERT_EQ(m_rows.Clone(&clone), 1);
    EXPECT_TRUE(clone.IsOpen());
    EXPECT_EQ(clone.GetQuery(), m_rows.GetQuery());
    EXPECT_EQ(Text(clone, "name"), "甲");
    EXPECT_EQ(Text(m_rows, "name"), "乙");
    clone.Edit();
    clone.SetFieldText("name", "改");
    clone.Update();
    EXPECT_EQ(Names(m_rows), "改乙丙");
    m_rows.Close();
    EXPECT_EQ(m_rows.Clone(&clone), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0E78U);
}

TEST_P(AdoRecordsetCopy, SavesAndOpensRowsAsXml) {
    const CString strPath = m_folder.Path("rows.xml");
    m_rows.SetFilter("id > 1");
    ASSERT_EQ(m_rows.SaveAsXml(strPath), 1);
    CADORecordset saved(m_adoDatabase);
    ASSERT_EQ(saved.OpenXml(strPath), 1);
    EXPECT_TRUE(saved.IsOpen());
    EXPECT_EQ(Names(saved), "乙丙");
    EXPECT_EQ(saved.OpenXml(strPath), 1); // closes first
    saved.Edit();
    saved.SetFieldText("name", "改");
    EXPECT_EQ(saved.Update(), 1);
    EXPECT_EQ(Names(saved), "改丙");
    EXPECT_EQ(Table()[1], "2|乙|");
}

TEST_P(AdoRecordsetCopy, KeepsTheErrorOfAFile) {
    const CString strPath = m_folder.Path("rows.xml");
    EXPECT_EQ(m_rows.OpenXml(strPath), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0BBBU);
    EXPECT_EQ(m_rows.SaveAsXml(strPath), 0); // closed
    m_rows.Open();
    EXPECT_EQ(m_rows.SaveAsXml(strPath), 1);
    m_rows.Open();
    EXPECT_EQ(m_rows.SaveAsXml(strPath), 0); // it is there
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A003AU);
}
